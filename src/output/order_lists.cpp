#include "output/order_lists.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

#include "numeric/number.h"
#include "numeric/text.h"
#include "output/gathered_bills.h"
#include "output/tally_groups.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

constexpr double kUsualWidth = 10;

/// The number in the first field of a select, 0 when it is Null or there is no row.
double NumberOf(Connection& connection, const std::string& sql) {
    const std::optional<Cursor> row = OpenQuery(connection, sql);
    return !row || row->Eof() || row->Field(0).IsNull() ? 0 : row->Field(0).Number();
}

std::string Quoted(const std::string& key) {
    return "'" + key + "'";
}

std::string WholeText(double number) {
    return ShortText(static_cast<std::int64_t>(number));
}

/// The name of a material in the catalogue, or else in its formula row.
std::string NameOf(Connection& connection, MaterialClass materialClass, const std::string& rawTable,
                   const std::string& key) {
    const CatalogueTable catalogue = CatalogueOf(materialClass);
    FieldSlots slots;
    FetchCatalogueRow(connection, catalogue.table, catalogue.keyColumn, key, slots);
    if (!Trim(slots[2]).empty()) return slots[2];
    const std::optional<Cursor> raw =
        OpenQuery(connection, "Select 名称 from " + rawTable + " where 规格=" + Quoted(key));
    return raw && !raw->Eof() ? raw->Field(0).TextOrEmpty() : std::string();
}

/// How many bars of a material to buy, and what that rests on.
struct Bars {
    double length = 0;  ///< mm
    double count = 0;
    std::string basis;
};

Bars BarsOf(Connection& connection, MaterialClass materialClass, const std::string& rawTable,
            const TallyGroup& group) {
    const std::string lengthColumn = materialClass == MaterialClass::Profile ? "型材长度" : "型钢长度";
    const CatalogueTable catalogue = CatalogueOf(materialClass);
    const std::string where = " where 规格=" + Quoted(group.key);
    Bars bars;
    bars.length = NumberOf(connection, "Select " + lengthColumn + " from " + catalogue.table + " where " +
                                           catalogue.keyColumn + "=" + Quoted(group.key));
    const double planned =
        NumberOf(connection, "Select sum(数量) from 优化结果 where 材料名称=" + Quoted(group.key));
    if (planned > 0) {
        bars.count = planned;
        bars.basis = "优化方案";
        // The plan may be that of other windows.
        if (NumberOf(connection, "Select sum(数量) from 优化数据" + where) !=
            NumberOf(connection, "Select sum(数量) from " + rawTable + where)) {
            bars.basis += "，件数与归总不同，请核对";
        }
    } else if (bars.length > 0) {
        bars.count = std::ceil(group.sum / bars.length);
        bars.basis = "总长÷料长，不含损耗";
    } else {
        bars.basis = "材料库中没有料长";
    }
    return bars;
}

void AddBars(Connection& connection, MaterialClass materialClass, FileTable& list) {
    const bool isProfile = materialClass == MaterialClass::Profile;
    const std::string raw = isProfile ? "OutXC" : "OutXG";
    for (const TallyGroup& group : TallyGroups(connection, materialClass, TallyView::Summary)) {
        const Bars bars = BarsOf(connection, materialClass, raw, group);
        list.rows.push_back({isProfile ? "型材" : "型钢", NameOf(connection, materialClass, raw, group.key),
                             group.key, ShortText(NarrowToFloat(group.sum / 1000)), "米",
                             bars.length > 0 ? WholeText(bars.length) : "",
                             bars.count > 0 ? WholeText(bars.count) : "", "支", bars.basis});
    }
}

void AddFittings(Connection& connection, FileTable& list) {
    for (const std::vector<std::string>& row :
         TextRows(connection.OpenCursor("Select 规格,单位,sum(数量) from OutPJ Group by 规格,单位"))) {
        const std::string unit(Trim(row[1]));
        list.rows.push_back({"配件", NameOf(connection, MaterialClass::Fitting, "OutPJ", row[0]), row[0],
                             row[2], unit, "", row[2], unit, ""});
    }
}

void AddPanels(Connection& connection, FileTable& list) {
    for (const std::vector<std::string>& row : TextRows(connection.OpenCursor(
             "Select 名称,sum(长*宽*数量/1000000),sum(数量) from OutPC Group by 名称"))) {
        list.rows.push_back({"板材", row[0], "", ShortText(NarrowToFloat(Val(row[1]))), "平方米", "", row[2],
                             "块", "尺寸见玻璃单"});
    }
}

/// Pieces of one size, and for how many in which window.
struct Panes {
    double count = 0;
    std::vector<std::pair<std::string, double>> windows;

    void Add(const std::string& window, double pieces) {
        count += pieces;
        if (windows.empty() || windows.back().first != window) windows.emplace_back(window, 0);
        windows.back().second += pieces;
    }
    std::string Marks() const {
        std::string text;
        for (const auto& [window, pieces] : windows) {
            text += (text.empty() ? "" : "、") + window + "×" + ShortText(pieces);
        }
        return text;
    }
};

/// By name, then from the longest and widest.
using PaneKey = std::tuple<std::string, double, double>;

std::map<PaneKey, Panes> PanesOf(Connection& connection, std::span<const WindowEntry> windows) {
    std::map<PaneKey, Panes> panes;
    ExpandGathered(connection, windows, [&](const WindowEntry& window, const BillRow& row) {
        if (row.materialClass != MaterialClass::Panel) return;
        panes[{row.name, -Val(row.length), -Val(row.width)}].Add(window.name, Val(row.quantity));
    });
    return panes;
}

}  // namespace

FileTable BuyingList(Connection& connection) {
    FileTable list;
    list.title = "采购单";
    list.columns = {{"类别", false, 6},    {"名称", false, 20}, {"规格", false, 16},
                    {"需要量", true, 11},  {"单位", false, 8},  {"料长mm", true, 8},
                    {"采购数量", true, 9}, {"单位", false, 6},  {"根据", false, 24}};
    AddBars(connection, MaterialClass::Profile, list);
    AddBars(connection, MaterialClass::Steel, list);
    AddFittings(connection, list);
    AddPanels(connection, list);
    return list;
}

FileTable GlassList(Connection& connection, std::span<const WindowEntry> windows) {
    FileTable list;
    list.title = "玻璃单";
    list.columns = {{"名称", false, 20}, {"长mm", true, 9},    {"宽mm", true, 9},
                    {"块数", true, 7},   {"平方米", true, 10}, {"用于门窗", false, 40}};
    double pieces = 0;
    double area = 0;
    for (const auto& [key, panes] : PanesOf(connection, windows)) {
        const auto& [name, length, width] = key;
        const double squareMetres = length * width * panes.count / 1000000;
        list.rows.push_back({name, ShortText(-length), ShortText(-width), ShortText(panes.count),
                             ShortText(NarrowToFloat(squareMetres)), panes.Marks()});
        pieces += panes.count;
        area += squareMetres;
    }
    list.below = {{"合计", "", "", ShortText(pieces), ShortText(NarrowToFloat(area))}};
    return list;
}

Report ListReport(const FileTable& list, const std::string& project, const std::string& source) {
    Report report;
    report.title = list.title;
    report.heading = {{"工程名称：" + project}, {source}};
    report.repeated = {report.heading.front()};
    for (const FileTable::Column& column : list.columns) {
        report.columns.push_back({column.heading,
                                  static_cast<float>(column.width > 0 ? column.width : kUsualWidth),
                                  column.isNumber ? ReportAlign::Right : ReportAlign::Left});
    }
    report.rows = list.rows;
    if (!list.below.empty()) {
        report.totals = list.below.front();
        report.totals.resize(list.columns.size());
    }
    return report;
}

}  // namespace kalvane
