#include "optimise/plan_file.h"

#include "page/table_file.h"

namespace kalvane {
namespace {

constexpr std::size_t kRulerWidth = 84;

template <typename Row>
std::vector<FileTable::Line> Lines(const std::vector<Row>& rows) {
    std::vector<FileTable::Line> lines;
    lines.reserve(rows.size());
    for (const Row& row : rows) lines.emplace_back(row.begin(), row.end());
    return lines;
}

FileTable CutTableOf(const PlanOutput& plan) {
    FileTable table;
    table.title = "材料优化切割表";
    table.rows = Lines(plan.cuts);
    return table;
}

FileTable TotalTableOf(const PlanOutput& plan) {
    FileTable table;
    table.title = "材料优化统计表";
    table.rows = Lines(plan.totals);
    return table;
}

}  // namespace

void SavePlanText(const PlanOutput& plan, const std::filesystem::path& path) {
    const std::string project = "工程名称：" + plan.projectName;
    FileTable cuts = CutTableOf(plan);
    cuts.above = {{}, {"", "", project}};
    cuts.columns = {{"材料名称"}, {"切割规格"}, {"数量"}, {"优化比率"}, {"余料长度"}, {""}};
    cuts.below = {{"", "日期", plan.today}, {std::string(kRulerWidth, '=')}};
    FileTable totals = TotalTableOf(plan);
    totals.above = {{project}};
    totals.columns = {{"材料名称"}, {"数量"}, {"优化比率"}, {"采购数量"}};
    totals.below = {{"总经理签字"}, {}, {"主管签字"}, {}, {"", "日期" + plan.today}};
    SaveTableText({std::move(cuts), std::move(totals)}, TabPlace::BeforeEachCell, path);
}

Workbook PlanWorkbook(const PlanOutput& plan) {
    const std::vector<FileTable::Line> above = {{}, {"   工程名称：", plan.projectName}};
    FileTable cuts = CutTableOf(plan);
    cuts.above = above;
    cuts.columns = {{"材料名称"},
                    {"                 切割规格", false, 45},
                    {"数量", true, 4},
                    {"优化比率", true, 9},
                    {"余料长度", true, 9}};
    cuts.below = {{}, {"日期", plan.today}};
    FileTable totals = TotalTableOf(plan);
    totals.above = above;
    totals.columns = {{"   材料名称"}, {"     数量", true}, {"   优化比率", true}, {"   采购数量"}};
    totals.below = {{"总经理签字", "", "主管签字"}, {}, {"日期", "", plan.today}};
    return TableWorkbook({std::move(cuts), std::move(totals)});
}

}  // namespace kalvane
