#include "warehouse/note_reports.h"

#include "store/schema.h"
#include "warehouse/goods_notes.h"
#include "warehouse/minimum_stock.h"
#include "warehouse/stock_query.h"

namespace kalvane {
namespace {

ReportColumn ColumnFor(std::string_view table, std::string_view name) {
    const Column& column = *FindColumn(*FindTable(table), name);
    const bool isNumber = FieldTypeOf(column) != FieldType::Text;
    const bool isLong = name == "名称" || name == "规格" || name == "厂家";
    return {std::string(name), isLong ? 20.0F : 10.0F, isNumber ? ReportAlign::Right : ReportAlign::Left};
}

}  // namespace

Report NoteReport(Connection& stock, NoteKind kind, std::string_view number) {
    constexpr std::size_t kFieldsInLine = 2;
    const NoteLayout& layout = LayoutOf(kind);
    const GoodsNote note = LoadNote(stock, kind, number);
    Report report;
    report.title = layout.reportTitle;
    for (std::size_t i = 0; i < layout.fields.size(); ++i) {
        const NoteField& field = layout.fields[i];
        if (i % kFieldsInLine == 0) report.heading.emplace_back();
        std::string text = std::string(field.label) + note.*field.member;
        if (field.member == &GoodsNote::amount) text += "元";
        report.heading.back().push_back(text);
    }
    if (report.heading.back().size() < kFieldsInLine) report.heading.back().emplace_back();
    report.repeated = {report.heading.front()};
    for (const NoteLineField& field : layout.lineFields) {
        report.columns.push_back(ColumnFor(layout.lineTable, field.column));
    }
    for (const NoteLine& line : note.lines) {
        std::vector<std::string>& row = report.rows.emplace_back();
        for (const NoteLineField& field : layout.lineFields) row.push_back(line.*field.member);
    }
    return report;
}

Report StockReport(Connection& stock) {
    Report report;
    report.title = "库存表";
    for (const Column& column : FindTable("库存表")->columns) {
        report.columns.push_back(ColumnFor("库存表", column.name));
    }
    report.rows = TextRows(stock.OpenCursor(QueryStatement("库存表")));
    return report;
}

Report LowStockReport(Connection& stock, Connection& own) {
    Report report;
    report.title = "低于最低库存的材料";
    for (const char* name : {"名称", "规格", "单位", "种类", "库存量"}) {
        report.columns.push_back(ColumnFor("库存表", name));
    }
    report.columns.push_back({"最低库存", 10.0F, ReportAlign::Right});
    report.columns.push_back({"缺", 10.0F, ReportAlign::Right});
    for (const StockLevel& level : BelowMinimum(stock, own)) {
        report.rows.push_back(
            {level.name, level.code, level.unit, level.kind, level.onHand, level.minimum, level.lacking});
    }
    return report;
}

}  // namespace kalvane
