#include "output/tally_check.h"

#include <algorithm>
#include <map>

#include "numeric/error.h"
#include "numeric/number.h"
#include "output/cents.h"
#include "output/material_summary.h"
#include "output/tally_trace.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

constexpr const char* kSign = "*";
constexpr std::size_t kUsesShown = 6;
constexpr std::size_t kFees = 4;

bool HasCatalogueRow(Connection& connection, const TallyGroup& group) {
    const CatalogueTable catalogue = CatalogueOf(group.materialClass);
    try {
        return RowExists(connection, catalogue.table, catalogue.keyColumn, group.key, "T");
    } catch (const StoreError&) {
        return false;  // a quote in the key: the tally did not find it either
    }
}

double ExactAmount(Connection& connection, const TallyGroup& group, TallyView view) {
    const CatalogueTable catalogue = CatalogueOf(group.materialClass);
    FieldSlots slots;
    FetchCatalogueRow(connection, catalogue.table, catalogue.keyColumn, group.key, slots);
    return UnitPrice(group.materialClass, slots) * TallyQuantity(group, view);
}

/// The detail's amounts of bars are no amounts of anything.
bool HasAmount(const TallyGroup& group, TallyView view) {
    return view == TallyView::Summary || group.materialClass == MaterialClass::Fitting ||
           group.materialClass == MaterialClass::Panel;
}

const char* ClassName(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return "型材";
        case MaterialClass::Steel:
            return "型钢";
        case MaterialClass::Fitting:
            return "配件";
        case MaterialClass::Panel:
            break;
    }
    return "板材";
}

std::string UsesText(const std::vector<std::string>& uses) {
    std::string text;
    for (std::size_t i = 0; i < std::min(uses.size(), kUsesShown); ++i)
        text += (i == 0 ? "" : "、") + uses[i];
    if (uses.size() > kUsesShown) text += " 等 " + std::to_string(uses.size()) + " 处";
    return text;
}

}  // namespace

std::vector<CheckedRow> CheckTally(Connection& connection, const ClassChoice& classes, TallyView view) {
    std::map<std::string, std::string> amounts;
    for (Cursor row = connection.OpenCursor("Select BN,金额 from OutTJ"); !row.Eof(); row.MoveNext()) {
        amounts[row.Field(0).TextOrEmpty()] = row.Field(1).TextOrEmpty();
    }
    std::vector<CheckedRow> rows;
    for (const MaterialClass materialClass : kAllClasses) {
        if (!classes.Has(materialClass)) continue;
        for (TallyGroup& group : TallyGroups(connection, materialClass, view)) {
            CheckedRow& row = rows.emplace_back();
            row.number = static_cast<int>(rows.size());
            row.amount = amounts[std::to_string(row.number)];
            row.group = std::move(group);
            row.isInCatalogue = HasCatalogueRow(connection, row.group);
            if (!row.isInCatalogue || !HasAmount(row.group, view)) continue;
            row.exact = ExactAmount(connection, row.group, view);
            row.losesCents = ToCents(Val(row.amount)) != ToCents(row.exact);
        }
    }
    return rows;
}

double ExactTotal(std::span<const CheckedRow> rows) {
    double total = 0;
    for (const CheckedRow& row : rows) total += ToCents(row.exact);
    return ToCents(total);
}

double ExactOrderTotal(std::span<const CheckedRow> rows, std::span<const WindowEntry> windows,
                       const FieldSlots& slots) {
    double squareMillimetres = 0;
    for (const WindowEntry& window : windows) {
        squareMillimetres += static_cast<double>(RoundToInt32(Val(window.width))) *
                             RoundToInt32(Val(window.height)) * RoundToInt32(Val(window.count));
    }
    double total = ExactTotal(rows);
    for (std::size_t i = 0; i < kFees; ++i) total += ToCents(squareMillimetres / 1000000 * Val(slots[i]));
    return ToCents(total);
}

std::vector<std::string> PriceNote(Connection& connection, std::span<const CheckedRow> rows, TallyView view,
                                   std::span<const WindowEntry> windows) {
    std::vector<std::string> lines;
    for (const CheckedRow& row : rows) {
        if (row.isInCatalogue) continue;
        const TallyGroup& group = row.group;
        std::string line = std::string(kSign) + " 第 " + std::to_string(row.number) + " 行，" +
                           ClassName(group.materialClass) + "“" + group.key + "”";
        const std::vector<std::string> uses = FindUses(connection, windows, {group.materialClass, group.key});
        if (!uses.empty()) line += "：" + UsesText(uses);
        lines.push_back(line);
    }
    if (lines.empty()) return lines;
    lines.insert(lines.begin(), "以下材料在材料库中没有，其名称和单价是上一行的：");
    if (view == TallyView::Summary) {
        lines.push_back("不含这些行的材料造价（准确到分）：" + CentsText(ExactTotal(rows)) + " 元");
    }
    return lines;
}

void MarkPrices(Report& report, std::span<const CheckedRow> rows, const std::vector<std::string>& note) {
    if (note.empty()) return;
    std::map<std::string, bool> isMarked;
    for (const CheckedRow& row : rows) isMarked[std::to_string(row.number)] = !row.isInCatalogue;
    report.columns.push_back({"", 3, ReportAlign::Centre});
    for (std::vector<std::string>& cells : report.rows) {
        cells.emplace_back(isMarked[cells.front()] ? kSign : "");
    }
    for (const std::string& line : note) report.closing.push_back({line});
}

bool NeedsCheckSheet(std::span<const CheckedRow> rows) {
    return std::any_of(rows.begin(), rows.end(),
                       [](const CheckedRow& row) { return row.losesCents || !row.isInCatalogue; });
}

FileTable CheckSheet(std::span<const CheckedRow> rows) {
    FileTable sheet;
    sheet.title = "金额核对";
    sheet.columns = {
        {"编号", true},         {"类别"},           {"材料库中的名称或规格", false, 24}, {"金额", true, 14},
        {"准确金额", true, 14}, {"说明", false, 36}};
    for (const CheckedRow& row : rows) {
        const char* remark = !row.isInCatalogue ? "材料库中没有，名称和单价是上一行的"
                             : row.losesCents   ? "金额的位数不够，与准确金额不同"
                                                : "";
        sheet.rows.push_back({std::to_string(row.number), ClassName(row.group.materialClass), row.group.key,
                              row.amount, row.isInCatalogue ? CentsText(row.exact) : "", remark});
    }
    sheet.rows.push_back({"", "", "有单价的合计", "", CentsText(ExactTotal(rows)), ""});
    return sheet;
}

}  // namespace kalvane
