#include "optimise/plan_workbook.h"

namespace kalvane {
namespace {

constexpr int kHeadingRow = 3;
constexpr int kCaptionRow = 4;
constexpr int kFirstRow = 5;

void WriteHeading(Sheet& sheet, const char* title, int columns, const PlanOutput& plan) {
    sheet.MergeCentred(1, 1, 1, columns, title);
    sheet.WriteText(kHeadingRow, 1, "   工程名称：");
    sheet.WriteText(kHeadingRow, 2, plan.projectName);
}

void WriteCaptions(Sheet& sheet, std::initializer_list<const char*> captions) {
    int column = 0;
    for (const char* caption : captions) sheet.WriteText(kCaptionRow, ++column, caption);
}

/// Writes the rows, texts up to `lastTextColumn` and numbers behind it; answers the last row written.
template <typename Row>
int WriteRows(Sheet& sheet, const std::vector<Row>& rows, int lastTextColumn) {
    int line = kFirstRow;
    for (const Row& row : rows) {
        int column = 1;
        for (const std::string& field : row) {
            if (column <= lastTextColumn) {
                sheet.WriteText(line, column, field);
            } else {
                sheet.WriteValue(line, column, field);
            }
            ++column;
        }
        ++line;
    }
    return line - 1;
}

void FillCutSheet(Sheet& sheet, const PlanOutput& plan) {
    WriteHeading(sheet, "材料优化切割表", 5, plan);
    sheet.SetColumnWidth(2, 45);
    sheet.SetColumnWidth(3, 4);
    sheet.SetColumnWidth(4, 9);
    sheet.SetColumnWidth(5, 9);
    WriteCaptions(sheet, {"材料名称", "                 切割规格", "数量", "优化比率", "余料长度"});
    const int last = WriteRows(sheet, plan.cuts, 2);
    sheet.WriteText(last + 2, 1, "日期");
    sheet.WriteText(last + 2, 2, plan.today);
    sheet.DrawBorders(kCaptionRow, 1, last, 5);
}

void FillTotalSheet(Sheet& sheet, const PlanOutput& plan) {
    WriteHeading(sheet, "材料优化统计表", 4, plan);
    WriteCaptions(sheet, {"   材料名称", "     数量", "   优化比率", "   采购数量"});
    const int last = WriteRows(sheet, plan.totals, 1);
    sheet.WriteText(last + 1, 1, "总经理签字");
    sheet.WriteText(last + 1, 3, "主管签字");
    sheet.WriteText(last + 3, 1, "日期");
    sheet.WriteText(last + 3, 3, plan.today);
    sheet.DrawBorders(kCaptionRow, 1, last, 4);
}

}  // namespace

Workbook PlanWorkbook(const PlanOutput& plan) {
    Workbook workbook;
    FillCutSheet(workbook.AddSheet(), plan);
    FillTotalSheet(workbook.AddSheet(), plan);
    return workbook;
}

}  // namespace kalvane
