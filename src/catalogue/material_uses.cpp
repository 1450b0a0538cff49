#include "catalogue/material_uses.h"

#include <map>

#include "numeric/number.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

/// Runs `work` on the type and the code of each row of a class's formulas.
template <typename Work>
void ForEachQuote(Connection& connection, const CatalogueClass& materialClass, Work work) {
    Cursor row = connection.OpenCursor(std::string("Select 窗号,") + materialClass.formulaColumn + " from " +
                                       materialClass.formulaTable);
    for (; !row.Eof(); row.MoveNext()) {
        if (!row.Field(0).IsNull()) work(row.Field(0), row.Field(1).TextView());
    }
}

/// A field of the row with that number; empty when there is no such row.
std::string FieldOfRow(Connection& connection, const std::string& table, const std::string& number,
                       const char* field) {
    if (number.empty()) return {};
    const Cursor row = connection.OpenCursor("Select * from " + table + " where 编号=" + number);
    return row.Eof() ? std::string() : row.Field(field).TextOrEmpty();
}

std::set<std::string> CodesOf(Connection& connection, const CatalogueClass& materialClass,
                              std::string_view parent) {
    std::set<std::string> codes;
    for (const MaterialTexts& material : LoadMaterials(connection, materialClass, parent)) {
        codes.insert(material[materialClass.code]);
    }
    return codes;
}

}  // namespace

std::vector<MaterialUse> UsesOfMaterial(Connection& connection, const CatalogueClass& materialClass,
                                        const std::string& code) {
    std::map<std::int64_t, int> rowsOfType;
    ForEachQuote(connection, materialClass, [&](const FieldValue& type, const std::string& quoted) {
        if (quoted == code) ++rowsOfType[static_cast<std::int64_t>(type.Number())];
    });
    std::vector<MaterialUse> uses;
    for (const auto& [type, rows] : rowsOfType) {
        const std::string number = ShortText(type);
        const std::string series = FieldOfRow(connection, "门窗", number, "系列编号");
        const std::string maker = FieldOfRow(connection, "门窗系列", series, "厂家编号");
        uses.push_back({FieldOfRow(connection, "门窗厂家", maker, "名称"),
                        FieldOfRow(connection, "门窗系列", series, "名称"),
                        FieldOfRow(connection, "门窗", number, "名称"), rows});
    }
    return uses;
}

int TypesThatQuote(Connection& connection, std::string_view tag) {
    const std::string kind = KeyKind(tag);
    const std::string number = KeyId(tag);
    std::set<std::string> codes;
    if (kind == kProfileMakerKind) {
        Cursor series = connection.OpenCursor("Select 编号 from 型材系列 where 厂家编号=" + number);
        for (; !series.Eof(); series.MoveNext()) {
            codes.merge(CodesOf(connection, *ClassOfKind(kSeriesKind), series.Field(0).Text()));
        }
    } else if (const CatalogueClass* materialClass = ClassOfKind(kind)) {
        codes = CodesOf(connection, *materialClass, number);
    }
    std::set<std::int64_t> types;
    const CatalogueClass* quoted = ClassOfKind(kind == kProfileMakerKind ? kSeriesKind : kind);
    if (quoted == nullptr || codes.empty()) return 0;
    ForEachQuote(connection, *quoted, [&](const FieldValue& type, const std::string& code) {
        if (codes.contains(code)) types.insert(static_cast<std::int64_t>(type.Number()));
    });
    return static_cast<int>(types.size());
}

std::string UsesText(const std::string& code, const std::vector<MaterialUse>& uses) {
    if (uses.empty()) return "没有窗型的公式引用“" + code + "”。";
    std::string text = std::to_string(uses.size()) + " 个窗型的公式引用“" + code + "”：";
    for (const MaterialUse& use : uses) {
        text += "\n" + use.maker + " → " + use.series + " → " + use.type + "：" + std::to_string(use.rows) +
                " 行";
    }
    return text;
}

}  // namespace kalvane
