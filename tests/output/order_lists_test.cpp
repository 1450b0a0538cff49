#include "output/order_lists.h"

#include "numeric/error.h"
#include "output/cents.h"
#include "output/gathering_record.h"
#include "output/material_summary.h"
#include "output/order_kit.h"
#include "output/tally_check.h"
#include "output/tally_reports.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class OrderListsTest : public MainStoreTest {
  protected:
    OrderListsTest() { FillOrder(*store_); }

    void Gather(const std::vector<WindowEntry>& windows) {
        GatherAndRecord(*store_, "工程甲", windows, "2026-11-25 16:40", notice_);
    }
    static std::string Text(const std::vector<std::vector<std::string>>& rows) {
        std::string text;
        for (const std::vector<std::string>& row : rows) {
            for (const std::string& cell : row) text += cell + "|";
            text += "\n";
        }
        return text;
    }
};

TEST_F(OrderListsTest, BarsAreBoughtByThePlanOrElseByTheirLength) {
    Gather({Window("C1", "5", "1")});
    Insert({"优化结果 (材料名称,数量) values('G1',1)", "优化结果 (材料名称,数量) values('G1',3)",
            "优化数据 (规格,数量) values('G1',3)"});
    const std::string profile = "型材|推拉框|K60|15.48|米|6000|3|支|总长÷料长，不含损耗|\n";  // 15480/6000
    const std::string rest =
        "配件|单滑轮|L1|6|个||6|个||\n配件|锁|S1|0|||0|||\n板材|5白玻||12.75813|平方米||6|块|尺寸见玻璃单|\n";
    EXPECT_EQ(Text(BuyingList(*store_).rows),
              profile + "型钢|方钢|G1|0.6428571|米|6000|4|支|优化方案|\n" + rest);
    store_->Execute("Update 优化数据 set 数量=2");
    store_->Execute("Update 型材 set 型材长度=Null");
    EXPECT_EQ(Text(BuyingList(*store_).rows),
              "型材|推拉框|K60|15.48|米|||支|材料库中没有料长|\n"
              "型钢|方钢|G1|0.6428571|米|6000|4|支|优化方案，件数与归总不同，请核对|\n" +
                  rest);
}

TEST_F(OrderListsTest, PanesAreCountedBySizeWithTheirWindows) {
    Insert({"标注 (MCNUM,MC,schar) Values(3,'B','2000')", "标注 (MCNUM,MC,schar) Values(3,'H','1800')"});
    const FileTable list = GlassList(*store_, std::vector{Window("C1", "5", "1"), Window("C3", "5", "3", "1"),
                                                          Window("C2", "5", "1", "2")});
    EXPECT_EQ(Text(list.rows),
              "5白玻|1815|1617|2|5.86971|C3×2|\n"            // 1815*1617*2/1000000
              "5白玻|1315|1617|10|21.26355|C1×6、C2×4|\n");  // 1315*1617*10/1000000
    EXPECT_EQ(list.below[0], (FileTable::Line{"合计", "", "", "12", "27.13326"}));
}

TEST_F(OrderListsTest, TheRecordOfAGatheringHoldsAsLongAsItsRows) {
    const std::vector<WindowEntry> windows = {Window("C1", "5", "1"), Window("C2\n", "99", "2")};
    EXPECT_FALSE(LoadGatheringRecord(*store_));
    Gather(windows);
    const auto record = LoadGatheringRecord(*store_);
    ASSERT_TRUE(record);
    EXPECT_TRUE(record->IsOf(windows));
    EXPECT_FALSE(record->IsOf(std::vector{windows[0]}));
    EXPECT_FALSE(record->IsOf(std::vector{windows[0], Window("C2\n", "99", "2", "4")}));
    EXPECT_EQ(GatheringRecord(*record).Text().substr(0, 55), "2026-11-25 16:40 归总，工程“工程甲”，2 种");
    Insert({"OutXC (规格,数量) values('x',1)"});
    EXPECT_FALSE(LoadGatheringRecord(*store_)) << "these are not the rows that were gathered";

    store_->Execute("Update 窗配件 set 数量='99999' where 编号=1");
    Gather({Window("C1", "5", "1")});
    EXPECT_EQ(LoadGatheringRecord(*store_)->cutShort, std::vector<std::string>({"C1"}));
    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(2,5,'B','760','左',2)"});
    EXPECT_THROW(Gather({Window("ZC1", "-4", "2")}), NumericError);
    EXPECT_TRUE(LoadGatheringRecord(*store_)->endedEarly);
}

TEST_F(OrderListsTest, PricesThatAreNotTheRowsOwnAreMarked) {
    Gather({Window("C1", "5", "1")});
    FieldSlots slots;
    TallyState totals;
    BuildMaterialSummary(*store_, {}, slots, totals);
    const std::vector<CheckedRow> rows = CheckTally(*store_, {}, TallyView::Summary);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_FALSE(rows[3].isInCatalogue);
    EXPECT_EQ(CentsText(ExactTotal(rows)), "578.32");  // 174.15 + 6.43 + 15 + 382.74
    slots = FieldSlots();
    slots[0] = "10.1";
    // 8.1 square metres: 81.81
    EXPECT_EQ(CentsText(ExactOrderTotal(rows, std::vector{Window("C1", "5", "1")}, slots)), "660.13");
    const auto note = PriceNote(*store_, rows, TallyView::Summary, std::vector{Window("C1", "5", "1")});
    ASSERT_EQ(note.size(), 3U);
    EXPECT_EQ(note[1], "* 第 4 行，配件“S1”：C1 的“锁”");
    Report report = drTJCL02(*store_, {"工程甲", "2026-11-25"}, "", {});
    MarkPrices(report, rows, note);
    EXPECT_EQ(report.rows[3].back() + report.rows[2].back() + report.rows[5].back(), "*");
    EXPECT_EQ(report.rows[3][1], "单滑轮") << "the told cells stay";
}

TEST_F(OrderListsTest, AmountsOfManyDigitsAreGivenToTheCent) {
    // 12345.5 m at 11.25: 138886.875, of which seven digits are 138886.9.
    Insert({"OutXC (规格,长度,数量) values('K60',12345500,1)"});
    FieldSlots slots;
    TallyState totals;
    BuildMaterialSummary(*store_, {}, slots, totals);
    const std::vector<CheckedRow> rows = CheckTally(*store_, {}, TallyView::Summary);
    EXPECT_EQ(rows[0].amount, "138886.9");
    EXPECT_TRUE(rows[0].losesCents && NeedsCheckSheet(rows));
    EXPECT_EQ(CheckSheet(rows).rows[0][4], "138886.88");
}

TEST_F(OrderListsTest, ReportsHaveTheirColumnsAndTotals) {
    Insert({"OutJS (XH,LX,Width,Height,Count,Mj,DJ,JE,BN) values('C1','厅',1500,1800,2,5.4,350,1890,1)",
            "OutJS (XH,LX,Width,Height,Count,Mj,DJ,JE,BN) values('M1','厅',900,2500,1,2.25,400,900,2)"});
    const Report areas = drJSB01(*store_, {"工程甲", "2026-11-25"}, {"甲公司", "乙厂"});
    EXPECT_EQ(Text({areas.totals}), "|合       计||||3|7.65||\n");
    EXPECT_EQ(Text(areas.rows), "1|C1|厅|1500|1800|2|5.4||\n2|M1|厅|900|2500|1|2.25||\n");
    EXPECT_EQ(areas.closing[0], (ReportLine{"发包单位：甲公司", "制作单位：乙厂"}));
    const Report amounts = drJSB02(*store_, {"工程甲", "2026-11-25"}, {"甲公司", "乙厂"});
    EXPECT_EQ(Text({amounts.totals}), "|合       计||||3|7.65||2790|\n");
    EXPECT_EQ(amounts.columns[7].group + amounts.columns[7].head, "单价(元/M )");
}

}  // namespace
}  // namespace kalvane::test
