#include "optimise/plan_report.h"

#include "optimise/plan.h"
#include "support/main_store.h"

namespace kalvane::test {

using PlanReportTest = MainStoreTest;

std::string Heads(const Report& report) {
    std::string heads;
    for (const ReportColumn& column : report.columns) heads += column.head + "|";
    return heads;
}

TEST_F(PlanReportTest, HoldsTheListsAndAColumnForThePen) {
    InsertPlanRow(*store_, {"A", "2000*3", "1", "1", "0"});
    InsertPlanRow(*store_, {"A", "1500", "1", "0.25", "4500"});
    InsertPlanRow(*store_, {"A", "2000*3", "1", "1", "0"});

    const Report cuts = dsYHB(*store_, "阳光花园");
    EXPECT_EQ(cuts.title, "材料优化表");
    EXPECT_EQ(cuts.heading, std::vector<ReportLine>{{"工程名称：阳光花园"}});
    EXPECT_EQ(Heads(cuts), "材料名称|切割规格|数量|优化比率|剩余料长|实际需求量|");
    EXPECT_EQ(cuts.rows, (std::vector<std::vector<std::string>>{{"A", "1500", "1", "0.25", "4500", ""},
                                                                {"", "2000*3", "2", "1", "0", ""}}));

    const Report totals = dsYHBT(*store_, "");
    EXPECT_EQ(totals.title, "材料优化统计表");
    EXPECT_EQ(totals.heading, std::vector<ReportLine>{{"工程名名称："}});
    EXPECT_EQ(Heads(totals), "材料名称|数  量|总体优化率|实际需求量|");
    // (1 + 0.25 + 1) / 3
    EXPECT_EQ(totals.rows, (std::vector<std::vector<std::string>>{{"A", "3", "0.75", ""}}));
}

}  // namespace kalvane::test
