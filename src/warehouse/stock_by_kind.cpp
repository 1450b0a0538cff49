#include "warehouse/stock_by_kind.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "numeric/number.h"
#include "warehouse/minimum_stock.h"
#include "warehouse/note_layout.h"

namespace kalvane {
namespace {

struct Material {
    std::size_t kindPlace;  ///< in MaterialKinds(); behind them for any other kind
    std::string kind;
    std::string name;
    std::string code;
    std::string unit;
    double in;
    double onHand;
};

struct Total {
    std::size_t materials = 0;
    double in = 0;
    double onHand = 0;
};

std::vector<Material> SortedMaterials(Connection& stock) {
    const auto kinds = MaterialKinds();
    std::vector<Material> materials;
    for (Cursor row = stock.OpenCursor("Select * from 库存表"); !row.Eof(); row.MoveNext()) {
        const auto text = [&row](const char* column) { return row.Field(column).TextOrEmpty(); };
        const auto place = std::find(kinds.begin(), kinds.end(), text("种类")) - kinds.begin();
        materials.push_back({static_cast<std::size_t>(place), text("种类"), text("名称"), text("规格"),
                             text("单位"), Val(text("入库量")), Val(text("库存量"))});
    }
    std::stable_sort(materials.begin(), materials.end(), [](const Material& a, const Material& b) {
        return std::tie(a.kindPlace, a.kind, a.name, a.code) < std::tie(b.kindPlace, b.kind, b.name, b.code);
    });
    return materials;
}

void AddTotals(const std::string& kind, const std::map<std::string, Total>& totals, Report& report) {
    for (const auto& [unit, total] : totals) {
        report.rows.push_back({kind + "小计", std::to_string(total.materials) + " 种规格", "", unit,
                               ShortText(total.in), ShortText(total.onHand), ""});
    }
}

}  // namespace

Report StockByKindReport(Connection& stock, Connection* own) {
    Report report;
    report.title = "分类库存表";
    report.columns = {{"种类", 12},
                      {"名称", 20},
                      {"规格", 20},
                      {"单位", 8},
                      {"入库量", 10, ReportAlign::Right},
                      {"库存量", 10, ReportAlign::Right},
                      {"低于最低库存", 14, ReportAlign::Right}};
    std::map<std::string, std::string> minimums;
    if (own != nullptr) {
        for (const StockLevel& low : BelowMinimum(stock, *own)) minimums[low.code] = low.minimum;
    }
    const std::vector<Material> materials = SortedMaterials(stock);
    std::map<std::string, Total> totals;
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const Material& material = materials[i];
        const auto minimum = minimums.find(material.code);
        report.rows.push_back({material.kind, material.name, material.code, material.unit,
                               ShortText(material.in), ShortText(material.onHand),
                               minimum == minimums.end() ? "" : "最低 " + minimum->second});
        Total& total = totals[material.unit];
        ++total.materials;
        total.in += material.in;
        total.onHand += material.onHand;
        if (i + 1 < materials.size() && materials[i + 1].kind == material.kind) continue;
        AddTotals(material.kind, totals, report);
        totals.clear();
    }
    report.totals = {"合计", std::to_string(materials.size()) + " 种规格", "", "", "", "", ""};
    return report;
}

}  // namespace kalvane
