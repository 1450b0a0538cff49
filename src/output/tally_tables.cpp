#include "output/tally_tables.h"

#include "output/material_summary.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

using Columns = std::vector<FileTable::Column>;

constexpr double kNameWidth = 24;
constexpr const char* kQuantityQuery = "Select BN,名称,规格,数量,DW from OutTJ Order by BN,名称";
constexpr const char* kSettlementQuery =
    "Select xh,lx,width,height,count,(width*height)/1000000*count,dj,je from OutJS order by xh,lx";

struct OutputLayout {
    const char* query;
    const char* title;
    Columns columns;
};

/// The areas carry prices and amounts too, under empty headings.
Columns SettlementColumns(const char* price, const char* amount) {
    return {{"名称", false, kNameWidth},
            {"规格", false, kNameWidth},
            {"宽度", true},
            {"高度", true},
            {"数量", true},
            {"平方数", true},
            {price, true},
            {amount, true, 14}};
}

OutputLayout LayoutOf(OutputView view) {
    const Columns quantities = {{"编号", true},
                                {"名称", false, kNameWidth},
                                {"规格", false, kNameWidth},
                                {"数量", true, 12},
                                {"单位"}};
    switch (view) {
        case OutputView::CmdOut1:
        case OutputView::cmdOut3:
            return {kQuantityQuery, "材料统计表", quantities};
        case OutputView::cmdOut2:
            return {"Select BN,名称,规格,数量,单价,DW,金额 from OutTJ Order by BN,名称",
                    "材料造价表",
                    {{"编号", true},
                     {"名称", false, kNameWidth},
                     {"规格", false, kNameWidth},
                     {"数量", true, 12},
                     {"单价", true, 12},
                     {"单位"},
                     {"金额", true, 14}}};
        case OutputView::cmdOutTJB:
            return {kSettlementQuery, "工程面积统计表", SettlementColumns("", "")};
        case OutputView::cmdOutZJB:
            break;
    }
    return {kSettlementQuery, "工程决算表", SettlementColumns("单价", "金额")};
}

}  // namespace

std::optional<TallyView> TallyViewOf(OutputView view) {
    switch (view) {
        case OutputView::CmdOut1:
        case OutputView::cmdOut2:
            return TallyView::Summary;
        case OutputView::cmdOut3:
            return TallyView::Detail;
        case OutputView::cmdOutTJB:
        case OutputView::cmdOutZJB:
            break;
    }
    return std::nullopt;
}

void RebuildForOutput(Connection& connection, OutputView view, const ClassChoice& classes, FieldSlots& slots,
                      TallyState& totals) {
    const std::optional<TallyView> tally = TallyViewOf(view);
    if (tally == TallyView::Summary) BuildMaterialSummary(connection, classes, slots, totals);
    if (tally == TallyView::Detail) BuildMaterialDetail(connection, classes, slots);
}

std::optional<FileTable> LoadOutput(Connection& connection, OutputView view) {
    const OutputLayout layout = LayoutOf(view);
    FileTable table;
    table.title = layout.title;
    table.columns = layout.columns;
    table.rows = TextRows(connection.OpenCursor(layout.query));
    if (table.rows.empty()) return std::nullopt;
    return table;
}

}  // namespace kalvane
