#include "design/type_check.h"

#include "design/test_values.h"

namespace kalvane {
namespace {

bool IsMissed(FindingKind kind) {
    return kind == FindingKind::NoCode || kind == FindingKind::NoLabel || kind == FindingKind::NeverReturns;
}

}  // namespace

std::vector<TypeFinding> FindingsOfAllTypes(Connection& connection) {
    const CatalogueCodes codes(connection);
    std::vector<TypeFinding> all;
    for (Cursor row = connection.OpenCursor("Select * from 门窗"); !row.Eof(); row.MoveNext()) {
        const std::string type = row.Field("编号").TextOrEmpty();
        const std::string drawing = row.Field("图号").TextOrEmpty();
        if (type.empty()) continue;
        std::vector<std::string> labels;
        if (!drawing.empty()) {
            for (const TestLabel& label : LabelsToTest(connection, type, drawing))
                labels.push_back(label.name);
        }
        for (const FormulaFinding& finding :
             FindingsOfLists(LoadFormulaLists(connection, type), codes, labels)) {
            if (IsMissed(finding.kind)) all.push_back({row.Field("名称").TextOrEmpty(), finding});
        }
    }
    return all;
}

}  // namespace kalvane
