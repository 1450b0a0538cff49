#include "output/settlement_check.h"

#include <algorithm>

#include "numeric/number.h"
#include "output/cents.h"

namespace kalvane {
namespace {

double ExactTotal(std::span<const SettledRow> rows) {
    double total = 0;
    for (const SettledRow& row : rows) total += ToCents(row.exact);
    return total;
}

}  // namespace

std::vector<SettledRow> CheckSettlement(Connection& connection) {
    std::vector<SettledRow> rows;
    for (Cursor row =
             connection.OpenCursor("Select BN,XH,JE,(Width*Height)/1000000*Count*DJ from OutJS Order by BN");
         !row.Eof(); row.MoveNext()) {
        rows.push_back({row.Field(0).TextOrEmpty(), row.Field(1).TextOrEmpty(), row.Field(2).TextOrEmpty(),
                        Val(row.Field(3).TextOrEmpty())});
    }
    return rows;
}

bool LosesCents(std::span<const SettledRow> rows) {
    return std::any_of(rows.begin(), rows.end(),
                       [](const SettledRow& row) { return ToCents(Val(row.amount)) != ToCents(row.exact); });
}

void AddExactTotal(Report& report, std::span<const SettledRow> rows) {
    if (LosesCents(rows))
        report.closing.push_back({"金额合计（准确到分）：" + CentsText(ExactTotal(rows)) + " 元"});
}

FileTable SettlementCheckSheet(std::span<const SettledRow> rows) {
    FileTable sheet;
    sheet.title = "金额核对";
    sheet.columns = {{"编号", true}, {"名称", false, 24}, {"金额", true, 14}, {"准确金额", true, 14}};
    for (const SettledRow& row : rows) {
        sheet.rows.push_back({row.number, row.window, row.amount, CentsText(row.exact)});
    }
    sheet.rows.push_back({"", "合计", "", CentsText(ExactTotal(rows))});
    return sheet;
}

}  // namespace kalvane
