#include "output/tally_reports.h"

#include "numeric/number.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

std::vector<ReportLine> Heading(const ReportHead& head) {
    return {{"工程名称：" + head.project, "日期：" + head.today}};
}

/// Sum of a column of report rows. The numbers are those that are shown: summing what lies behind them would
/// give a total that nobody can add up to.
std::string SumOf(const std::vector<std::vector<std::string>>& rows, std::size_t column) {
    double sum = 0;
    for (const std::vector<std::string>& row : rows) sum += Val(row[column]);
    return ShortText(sum);
}

std::vector<ReportColumn> MaterialColumns() {
    return {{"编号", 6, ReportAlign::Right},
            {"名    称", 26},
            {"规    格", 24},
            {"数  量", 14, ReportAlign::Right, "实际需求数量"}};
}

/// The columns that both settlement reports begin with.
std::vector<ReportColumn> SettlementColumns() {
    return {{"编号", 6, ReportAlign::Right},
            {"门窗类型", 18},
            {"门窗部位", 16},
            {"宽mm", 9, ReportAlign::Right, "门窗尺寸"},
            {"高mm", 9, ReportAlign::Right, "门窗尺寸"},
            {"樘 数", 8, ReportAlign::Right},
            {"面积", 12, ReportAlign::Right}};
}

/// The totals of the columns above.
std::vector<std::string> SettlementTotals(const std::vector<std::vector<std::string>>& rows) {
    return {"", "合       计", "", "", "", SumOf(rows, 5), SumOf(rows, 6)};
}

std::vector<ReportLine> Signatures(const SettlementParties& parties) {
    return {{"发包单位：" + parties.client, "制作单位：" + parties.maker},
            {"代表签字：", "代表签字："},
            {"盖章：", "盖章："}};
}

}  // namespace

void SetMaterialLabels(TallyState& tally, const ClassChoice& classes, const std::string& company) {
    tally.label11 = company + "材料统计表";
    if (classes.profile) tally.label10 = "型材总吨数：" + ShortText(tally.ProfileKilograms / 1000);
    if (classes.steel) tally.label12 = "型钢总吨数：" + ShortText(tally.SteelKilograms / 1000);
    if (classes.panel) tally.label14 = "板材总平方数：" + ShortText(tally.PanelSquareMetres);
}

Report drTJCL01(Connection& connection, const ReportHead& head, const TallyState& tally) {
    Report report;
    report.title = tally.label11;
    report.heading = Heading(head);
    report.repeated = report.heading;
    report.columns = MaterialColumns();
    report.columns.push_back({" 单位", 10});
    report.rows = TextRows(connection.OpenCursor("Select BN,名称,规格,数量,DW from outTj Order by BN"));
    report.closing = {{tally.label10, tally.label12, tally.label14}};
    return report;
}

Report drTJCL02(Connection& connection, const ReportHead& head, const std::string& company,
                const OrderFees& fees) {
    Report report;
    report.title = company + "门窗造价表";
    report.heading = Heading(head);
    report.repeated = report.heading;
    report.columns = MaterialColumns();
    report.columns.push_back({" 单位", 10});
    report.columns.push_back({"单  价", 12, ReportAlign::Right});
    report.columns.push_back({"金     额", 15, ReportAlign::Right});
    report.rows =
        TextRows(connection.OpenCursor("Select BN,名称,规格,数量,DW,单价,金额 from outTj Order by BN"));
    const std::size_t amount = report.columns.size() - 1;
    report.closing = {{"材料造价（元）：" + SumOf(report.rows, amount)},
                      {"人工费用：" + ShortText(fees.fees[0]), "税 费：" + ShortText(fees.fees[1])},
                      {"运输费用：" + ShortText(fees.fees[2]), "其它费用（元）：" + ShortText(fees.fees[3])},
                      {"门窗共计造价：" + ShortText(fees.total)}};
    return report;
}

Report drJSB01(Connection& connection, const ReportHead& head, const SettlementParties& parties) {
    Report report;
    report.title = "门 窗 面 积 统 计 表";
    report.heading = Heading(head);
    report.repeated = report.heading;
    report.columns = SettlementColumns();
    report.columns.push_back({"备 注", 14});
    report.rows =
        TextRows(connection.OpenCursor("Select BN,XH,LX,Width,Height,Count,Mj from OutJS Order by BN"));
    report.totals = SettlementTotals(report.rows);
    report.totals.emplace_back();
    for (std::vector<std::string>& row : report.rows) row.emplace_back();  // the column for the pen
    report.closing = Signatures(parties);
    return report;
}

Report drJSB02(Connection& connection, const ReportHead& head, const SettlementParties& parties) {
    Report report;
    report.title = "门 窗 决 算 表";
    report.heading = Heading(head);
    report.repeated = report.heading;
    report.columns = SettlementColumns();
    report.columns.push_back({"(元/M )", 11, ReportAlign::Right, "单价"});
    report.columns.push_back({"(元)", 14, ReportAlign::Right, "金额"});
    report.rows =
        TextRows(connection.OpenCursor("Select BN,XH,LX,Width,Height,Count,Mj,Dj,Je from OutJS Order by BN"));
    report.totals = SettlementTotals(report.rows);
    report.totals.emplace_back();
    report.totals.push_back(SumOf(report.rows, report.columns.size() - 1));
    report.closing = Signatures(parties);
    return report;
}

}  // namespace kalvane
