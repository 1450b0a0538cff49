#include "warehouse/material_proposals.h"

#include <set>

#include "numeric/text.h"

namespace kalvane {
namespace {

/// A table with materials; an empty column stands for the fixed text beside it.
struct Source {
    const char* table;
    const char* name;
    const char* code;
    const char* unitColumn;
    const char* unit;
    const char* kindColumn;
    const char* kind;
};

constexpr Source kStockList = {"库存表", "名称", "规格", "单位", "", "种类", ""};
constexpr Source kCatalogue[] = {{"型材", "型材名称", "型材型号", "", "支", "", "型材"},
                                 {"型钢", "型钢名称", "型钢规格", "", "支", "", "型钢"},
                                 {"玻璃", "玻璃名称", "玻璃名称", "", "块", "", "板材"},
                                 {"配件", "配件名称", "配件规格", "配件单位", "", "", "五金件"}};

void Collect(Connection& connection, const Source& source, std::set<std::string>& codes,
             std::vector<NoteLine>& materials) {
    for (Cursor row = connection.OpenCursor(std::string("Select * from ") + source.table); !row.Eof();
         row.MoveNext()) {
        const auto text = [&row](const char* column, const char* fixed) {
            return *column == '\0' ? std::string(fixed) : row.Field(column).TextOrEmpty();
        };
        const std::string code = text(source.code, "");
        if (code.empty() || !codes.insert(code).second) continue;
        materials.push_back({text(source.name, ""), code,
                             std::string(Trim(text(source.unitColumn, source.unit))), "", "",
                             text(source.kindColumn, source.kind)});
    }
}

}  // namespace

std::vector<NoteLine> ProposedMaterials(Connection& stock, Connection* catalogue) {
    std::set<std::string> codes;
    std::vector<NoteLine> materials;
    Collect(stock, kStockList, codes, materials);
    if (catalogue == nullptr) return materials;
    for (const Source& source : kCatalogue) Collect(*catalogue, source, codes, materials);
    return materials;
}

std::string LastPrice(Connection& stock, const std::string& code) {
    std::string price;
    for (Cursor row = stock.OpenCursor("Select 单价 from 入库单子表 where 规格='" + code + "'"); !row.Eof();
         row.MoveNext()) {
        price = row.Field(0).TextOrEmpty();
    }
    return price;
}

}  // namespace kalvane
