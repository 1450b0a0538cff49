#include "output/settlement.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "output/order_kit.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class SettlementTest : public MainStoreTest {};

TEST_F(SettlementTest, DoorsAndWindowsArePaidByTheirArea) {
    const std::vector<WindowEntry> windows = {Window("C1", "5", "1", "2"),
                                              Window("门联窗1", "5", "2", "1", "2400", "2500"),
                                              Window("C2", "5", "3", "1", "1500.5", "1000")};
    FillSettlement(*store_, windows, {400, 350.5});
    // 1.5*1.8*2 = 5.4 at 350.5; 2.4*2.5 = 6 at 400, a door by its name; 1.5005 with its fraction, though the
    // column of the width takes the even whole number. 1.5005*350.5 = 525.92525 has 7 digits as 525.9252.
    EXPECT_EQ(Rows("Select XH,LX,Width,Height,Count,Mj,DJ,JE,BN from OutJS"),
              "C1|客厅|1500|1800|2|5.4|350.5|1892.7|1\n"
              "门联窗1|客厅|2400|2500|1|6|400|2400|2\n"
              "C2|客厅|1500|1000|1|1.5005|350.5|525.9252|3");
    ClearSettlement(*store_);
    EXPECT_EQ(Rows("Select * from OutJS"), "");
    EXPECT_THROW(FillSettlement(*store_, std::vector{windows[0], Window("C'3", "5", "4")}, {1, 1}),
                 StoreError);
    EXPECT_EQ(Rows("Select XH from OutJS"), "C1") << "rows before the refusal stay";
}

TEST_F(SettlementTest, TheAreaOfTheFeesTakesWholeMillimetres) {
    EXPECT_EQ(ShortText(TotalArea(std::vector{Window("C1", "5", "1", "2")})), "5.4");
    EXPECT_EQ(ShortText(TotalArea(std::vector{Window("C1", "5", "1", "1", "1500.5", "1000")})), "1.5");
    EXPECT_EQ(ShortText(TotalArea(std::vector{Window("C1", "5", "1", "1", "1501.5", "1000")})), "1.502");
    EXPECT_THROW(TotalArea(std::vector{Window("C1", "5", "1", "1", "32768", "1000")}), NumericError);
}

TEST_F(SettlementTest, FeesAreAddedToTheMaterial) {
    FieldSlots slots;
    for (std::size_t i = 0; i < 4; ++i) slots[i] = std::to_string(i) + ".5元";
    const std::vector<WindowEntry> windows = {Window("C1", "5", "1", "1", "2000", "1000")};
    OrderFees fees = WorkOutFees(*store_, windows, slots);
    EXPECT_EQ(fees.fees, (std::array<double, 4>{1, 3, 5, 7}));  // 2 square metres
    EXPECT_EQ(fees.total, 16) << "no material counts 0";
    Insert({"OutTJ (金额) values(100.25)", "OutTJ (BN) values(2)"});
    fees = WorkOutFees(*store_, windows, slots);
    EXPECT_EQ(fees.total, 116.25);
    // 5.4 in 32 bits is 5.40000009536743164...
    slots[0] = "10";
    fees = WorkOutFees(*store_, std::vector{Window("C1", "5", "1", "2")}, slots);
    EXPECT_EQ(ShortText(fees.fees[0]), "54.0000009536743");
}

}  // namespace
}  // namespace kalvane::test
