#include "output/tally.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "output/material_summary.h"
#include "output/order_kit.h"
#include "store/table_writer.h"
#include "support/main_store.h"
#include "support/refusal.h"

namespace kalvane::test {
namespace {

constexpr ClassChoice kNone{false, false, false, false};

class TallyTest : public MainStoreTest {
  protected:
    TallyTest() { FillOrder(*store_); }

    std::vector<std::string> Gather(const std::vector<WindowEntry>& windows) {
        return GatherTallies(*store_, windows, notice_);
    }
    std::string Raw() {
        std::string text;
        for (const char* sql :
             {"Select 名称,规格,长度,数量 from OutXC", "Select 名称,规格,长度,数量 from OutXG",
              "Select 名称,规格,数量,单位 from OutPJ", "Select 名称,长,宽,数量 from OutPC"}) {
            text += Rows(sql) + "\n";
        }
        return text;
    }
    /// Adds a row past the statements, in which a quote would end its text.
    void AddRow(const char* table, std::initializer_list<std::string> fields) {
        std::vector<FieldValue> values;
        for (const std::string& field : fields) values.emplace_back(field);
        TableWriter(*store_, table).AddRow(values);
    }
    std::string Priced() { return Rows("Select BN,名称,规格,单价,DW,金额,数量 from OutTJ"); }
    std::string Summary(const ClassChoice& classes = {}) {
        BuildMaterialSummary(*store_, classes, slots_, totals_);
        return Priced();
    }
    std::string Detail(const ClassChoice& classes = {}) {
        BuildMaterialDetail(*store_, classes, slots_);
        return Priced();
    }

    FieldSlots slots_;
    TallyState totals_;
};

TEST_F(TallyTest, APlainWindowGathersARowForEachFormula) {
    Insert({"OutXC (规格) values('old')", "OutTJ (BN) values(9)"});
    Gather({Window("C1", "5", "1")});
    EXPECT_EQ(Raw(),
              "框B|K60|1440|6\n框H|K60|1140|6\n"  // 1800-600-60; 2.9 goes down to 2, times 3
              "衬钢|G1|214.2857|3\n"
              "滑轮|L1|6|个  \n锁|S1|0|\n"  // 2.5 to the even 2; no unit counts 0
              "5白玻|1315|1617|6\n");
    EXPECT_EQ(Priced(), "");
    Insert({"窗配件 (窗号,编号,名称,规格,数量,单位) values(6,1,'执手','Z','2.9','把')"});
    Gather({Window("C2", "6", "1"), Window("C3", "99", "77")});
    EXPECT_EQ(Raw(), "\n\n执手|Z|9|把\n\n") << "2.9 to 3; a type without rows adds none";
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(TallyTest, ACompositeMultipliesByTheCountOfItsMembers) {
    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(2,5,'B','760','左',2)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(2,5,'B','1760','右',1)"});
    Gather({Window("ZC1", "-4", "2")});
    EXPECT_EQ(Rows("Select 名称,长度,数量 from OutXC where 名称='框B'"), "框B|1700|6\n框B|700|12");
    EXPECT_EQ(Rows("Select 数量 from OutPJ"), "6\n0\n12\n0");
    EXPECT_EQ(Rows("Select 长,数量 from OutPC"), "1575|6\n575|12");
}

TEST_F(TallyTest, AFailureCutsAPlainWindowShortAndEndsAComposite) {
    store_->Execute("Delete * from 窗型材 where 编号=2");
    AddRow("窗型材", {"5", "2", "框'H", "K60", "2", "H"});
    const WindowEntry good = Window("C3", "6", "1");
    Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(6,1,'梃','T','1','9')"});
    EXPECT_EQ(Gather({Window("C1", "5", "1"), good}), std::vector<std::string>({"C1"}));
    ASSERT_EQ(notice_.shown.size(), 1U);
    EXPECT_EQ(notice_.shown[0].substr(0, 10), "出错！|");
    EXPECT_EQ(Rows("Select 名称 from OutXC"), "框B\n梃") << "what stood before, and the next window";

    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(2,5,'B','760','左',2)"});
    EXPECT_THROW(Gather({Window("C1", "5", "1"), Window("ZC1", "-4", "2"), good}), StoreError);
    EXPECT_EQ(Rows("Select 名称,长度 from OutXC"), "框B|1440\n框B|700");
    EXPECT_EQ(notice_.shown.size(), 2U) << "C1's failure is shown all the same";
}

TEST_F(TallyTest, TheSummaryPricesMetresSquareMetresAndCounts) {
    Gather({Window("C1", "5", "1")});
    // K60: (1440+1140)*6 mm at 9000/1000*1.25; G1: 3*214.2857 mm at 5000/1000*2; S1 is not in the catalogue
    // and shows the row before it; glass 1315*1617*6/1000000 at 30.
    EXPECT_EQ(Summary(),
              "1|推拉框|K60|11.25|米|174.15|15.48\n"
              "2|方钢|G1|10|米|6.4286|0.6429\n"
              "3|单滑轮|L1|2.5|个|15|6\n"
              "4|单滑轮|L1|2.5|个|0|0\n"
              "5|5白玻|-|30|平方米|382.7439|12.7581\n"
              "6|~|~|~|~|~|~");
    EXPECT_EQ(ShortText(NarrowToFloat(totals_.ProfileKilograms)), "19.35");   // 15.48 * 1.25
    EXPECT_EQ(ShortText(NarrowToFloat(totals_.SteelKilograms)), "1.285714");  // 0.6428571 * 2
    EXPECT_EQ(ShortText(NarrowToFloat(totals_.PanelSquareMetres)), "12.75813");
}

TEST_F(TallyTest, ClassesNumberOnAndUntalliedOnesKeepTheirSums) {
    totals_ = {1, 2, 3, {}, {}, {}, {}};
    EXPECT_EQ(Summary(), "1|~|~|~|~|~|~");
    EXPECT_EQ(totals_.ProfileKilograms, 1) << "no rows, no new sum";
    Gather({Window("C1", "5", "1")});
    EXPECT_EQ(Summary(kNone), "1|~|~|~|~|~|~");
    EXPECT_EQ(Summary({false, false, true, false}), "1|5白玻|-|30|平方米|382.7439|12.7581\n2|~|~|~|~|~|~");
    EXPECT_EQ(totals_.SteelKilograms, 2);
    EXPECT_EQ(ShortText(NarrowToFloat(totals_.PanelSquareMetres)), "12.75813");
    Summary({false, true, false, true});
    EXPECT_EQ(Rows("Select BN,名称 from OutTJ"), "1|方钢\n2|单滑轮\n3|单滑轮\n4|~");
}

TEST_F(TallyTest, TheDetailCountsPiecesOfEachSize) {
    Gather({Window("C1", "5", "1"), Window("C2", "5", "1", "1")});
    EXPECT_EQ(Detail(),
              "1|推拉框K60|1140|11.25|毫米|90|8\n"  // 2*3 + 2*1 pieces at the price of a metre
              "2|推拉框K60|1440|11.25|毫米|90|8\n"
              "3|方钢G1|214.2857|10|毫米|40|4\n"
              "4|单滑轮|L1|2.5|个|20|8\n"
              "5|单滑轮|L1|2.5|个|0|0\n"
              "6|5白玻|1315*1617*8|30|平方米|510.3252|17.0108\n"
              "7|~|~|~|~|~|~");
    EXPECT_EQ(totals_.ProfileKilograms, 0);
}

TEST_F(TallyTest, SlotsCarryOverUntilTheNameIsBlank) {
    store_->Execute("Delete * from 型材");
    store_->Execute("Delete * from 型钢");
    Gather({Window("C1", "5", "1")});
    // Nothing was looked up before the profile: no name, no price, and the key as 规格.
    EXPECT_EQ(Summary({true, false, false, false}), "1|#error#|K60|0|米|0|15.48\n2|~|~|~|~|~|~");
    // A fitting has six columns: slot 7 keeps the density of the dialog before, slot 8 the price of a ton.
    slots_[7] = "2";
    slots_[8] = "1000";
    EXPECT_EQ(Summary({false, false, false, true}).substr(0, 27), "1|单滑轮|L1|2.5|个|15|6");
    EXPECT_EQ(Summary({true, false, false, false}), "1|单滑轮|L1|2|米|30.96|15.48\n2|~|~|~|~|~|~");
    store_->Execute("Update 配件 set 配件名称=Null,配件规格='L1'");
    EXPECT_EQ(Summary({false, false, false, true}).substr(0, 23), "1|#error#|L1|2.5|个|15");
}

TEST_F(TallyTest, ARowThatIsRefusedEndsTheSummaryAndIsSkippedByTheDetail) {
    store_->Execute("Delete * from 型钢");
    AddRow("型钢", {"1", "1", "方'钢", "G1", "6000", "", "", "2", "5000"});
    Gather({Window("C1", "5", "1")});
    EXPECT_NE(Refusal([&] { Summary(); }), "");
    EXPECT_EQ(Rows("Select BN,名称 from OutTJ"), "1|推拉框");
    Detail({true, true, true, false});
    EXPECT_EQ(Rows("Select BN,规格 from OutTJ"), "1|1140\n2|1440\n4|1315*1617*6\n5|~");
}

}  // namespace
}  // namespace kalvane::test
