#include "optimise/plan_report.h"

#include "optimise/plan.h"

namespace kalvane {
namespace {

template <typename Row>
void AddRows(Report& report, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        report.rows.emplace_back(row.begin(), row.end()).emplace_back();  // the column for the pen
    }
}

}  // namespace

Report dsYHB(Connection& connection, std::string_view projectName) {
    Report report;
    report.title = "材料优化表";
    report.heading = {{"工程名称：" + std::string(projectName)}};
    report.repeated = report.heading;
    report.columns = {{"材料名称", 20},
                      {"切割规格", 32},
                      {"数量", 7, ReportAlign::Right},
                      {"优化比率", 19, ReportAlign::Right},
                      {"剩余料长", 10, ReportAlign::Right},
                      {"实际需求量", 12}};
    AddRows(report, CutTable(LoadSummedPlan(connection)));
    return report;
}

Report dsYHBT(Connection& connection, std::string_view projectName) {
    Report report;
    report.title = "材料优化统计表";
    report.heading = {{"工程名名称：" + std::string(projectName)}};
    report.repeated = report.heading;
    report.columns = {{"材料名称", 35},
                      {"数  量", 15, ReportAlign::Right},
                      {"总体优化率", 25, ReportAlign::Right},
                      {"实际需求量", 25}};
    AddRows(report, LoadTotalTable(connection));
    return report;
}

}  // namespace kalvane
