#include "project/wind_windows.h"

#include "formula/composite.h"
#include "formula/expansion.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

constexpr std::string_view kSashWidth = "扇B";
constexpr std::string_view kSashHeight = "扇H";

void Add(ProjectWindow& window, const BillRow& row) {
    if (row.materialClass == MaterialClass::Panel) {
        window.panes.push_back({row.name, Val(row.length), Val(row.width), Val(row.quantity)});
    }
    if (row.name == kSashWidth && window.sashWidth == 0) window.sashWidth = Val(row.length);
    if (row.name == kSashHeight && window.sashHeight == 0) window.sashHeight = Val(row.length);
}

}  // namespace

ProjectWindow WindowForCheck(Connection& connection, FormulaRows& rows, const std::string& projectName,
                             const WindowEntry& window, Notice& notice) {
    ProjectWindow taken;
    taken.project = projectName;
    taken.mark = window.name;
    taken.width = Val(window.width);
    taken.height = Val(window.height);
    const WindowToExpand one{window.number, window.typeNumber, "1"};
    const BillSink sink = [&taken](const BillRow& row) { Add(taken, row); };
    if (IsComposite(window.typeNumber)) {
        ExpandComposite(connection, rows, one, sink);
        return taken;
    }
    for (const LabelRow& label : LoadLabels(connection, window.number)) {
        taken.labels.push_back({label.name, Val(label.value)});
    }
    ExpandPlain(connection, rows, one, notice, sink);
    return taken;
}

}  // namespace kalvane
