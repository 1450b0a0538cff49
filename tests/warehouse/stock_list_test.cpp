// What is worked out from the stock list and its notes: movements, minimums, the list by kind, and what a
// project needs beside the stock.

#include "support/refusal.h"
#include "support/stock_store.h"
#include "warehouse/clear_stock.h"
#include "warehouse/goods_notes.h"
#include "warehouse/minimum_stock.h"
#include "warehouse/project_needs.h"
#include "warehouse/stock_by_kind.h"
#include "warehouse/stock_movements.h"

namespace kalvane::test {
namespace {

class StockListTest : public StockStoreTest {
  protected:
    void Confirm(NoteKind kind, const char* number, const char* date, std::vector<NoteLine> lines) {
        GoodsNote note = Note(number, std::move(lines));
        note.date = date;
        ConfirmNote(*store_, kind, note);
    }

    std::string Card(const std::string& code) {
        const StockCard card = MovementsOf(*store_, code);
        std::string text = card.opening;
        for (const Movement& move : card.movements) {
            text += "\n" + move.date + " " + move.number + (move.note == NoteKind::In ? " +" : " -") +
                    move.count + " =" + move.balance;
        }
        return text;
    }

    std::string Low() {
        std::string text;
        for (const StockLevel& low : BelowMinimum(*store_, *own_)) {
            text +=
                low.name + "," + low.code + "," + low.onHand + "<" + low.minimum + " by " + low.lacking + ";";
        }
        return text;
    }

    const std::filesystem::path ownFile_ = folder_ / kOwnStoreName;
    std::unique_ptr<Connection> own_ =
        (CreateStore(ownFile_, StoreKind::Own), std::make_unique<Connection>(ownFile_, StoreKind::Own));
};

TEST_F(StockListTest, MovementsRunInTheOrderOfTheirDays) {
    Confirm(NoteKind::In, "1", "2002-03-05", {Line("A", "10"), Line("B", "1"), Line("A", "2")});
    Confirm(NoteKind::Out, "1", "2002-03-05", {Line("A", "12")});
    Confirm(NoteKind::In, "2", "2002-03-04", {Line("A", "5")});
    Confirm(NoteKind::In, "10", "2002-03-05", {Line("A", "1")});
    // 5 on the 4th; on the 5th what comes in before what goes out, by number: +10 +2 +1 -12.
    EXPECT_EQ(Card("A"),
              "0\n2002-03-04 2 +5 =5\n2002-03-05 1 +10 =15\n2002-03-05 1 +2 =17\n"
              "2002-03-05 10 +1 =18\n2002-03-05 1 -12 =6");
    EXPECT_EQ(Rows("Select 库存量 from 库存表 where 规格='A'"), "6");
    EXPECT_EQ(MovementsOf(*store_, "A").movements[0].purpose, "生产");

    // A stock row that knows more than the notes: the rest was there before. A line without a note comes
    // first, one without a count does not count.
    store_->Execute("Update 库存表 set 库存量=库存量+100 where 规格='A'");
    store_->Execute("Insert into 出库单子表 (规格,数量) values('A',3)");
    store_->Execute("Insert into 出库单子表 (单据编号,规格) values(1,'A')");
    const std::string card = Card("A");
    EXPECT_TRUE(card.starts_with("103\n  -3 =100\n2002-03-04 2 +5 =105\n")) << card;
    EXPECT_TRUE(card.ends_with("=106")) << card;
    EXPECT_EQ(Card("C"), "0");
}

TEST_F(StockListTest, MinimumsAreKeptBesideTheWarehouse) {
    Confirm(NoteKind::In, "1", "2002-03-05", {Line("A", "10"), Line("B", "4"), Line("C", "1")});
    SetMinimum(*own_, "B", " 5 ");
    SetMinimum(*own_, "A", "10");  // just enough
    SetMinimum(*own_, "Z", "2");
    EXPECT_EQ(Low(), "料B,B,4<5 by 1;,Z,0<2 by 2;");
    SetMinimum(*own_, "B", "7");
    SetMinimum(*own_, "Z", "0");
    EXPECT_EQ(Low(), "料B,B,4<7 by 3;");
    std::string levels;
    for (const StockLevel& level : StockLevels(*store_, *own_)) {
        levels += level.code + "," + level.minimum + "," + level.lacking + ";";
    }
    EXPECT_EQ(levels, "A,10,;B,7,3;C,,;");
    for (const char* text : {"-1", "1.5", "三", "2147483648", "1e3"}) {
        EXPECT_NE(Refusal([&] { SetMinimum(*own_, "B", text); }), "") << text;
    }
    SetMinimum(*own_, "C", "2147483647");
    ClearStock(*store_);
    EXPECT_EQ(Low(), ",A,0<10 by 10;,B,0<7 by 7;,C,0<2147483647 by 2147483647;");
    SetMinimum(*own_, "B", "");
    EXPECT_EQ(test::Rows(*own_, "Select 规格 from 最低库存"), "A\nC");
}

TEST_F(StockListTest, TheListByKindHasTotalsForEachUnit) {
    NoteLine lock{"锁", "S1", "把", "1", "6", "五金件"};
    NoteLine tape{"胶条", "J1", "米", "1", "200", "五金件"};
    NoteLine pulley{"滑轮", "L1", "把", "1", "4", "五金件"};
    NoteLine other{"螺钉", "D1", "盒", "1", "3", "其他"};
    Confirm(NoteKind::In, "1", "2002-03-05", {other, lock, tape, Line("B", "4"), pulley, Line("A", "10")});
    Confirm(NoteKind::Out, "1", "2002-03-05", {lock});
    SetMinimum(*own_, "S1", "2");
    std::string text;
    for (const auto& row : StockByKindReport(*store_, own_.get()).rows) {
        for (const std::string& cell : row) text += cell + "|";
        text += "\n";
    }
    EXPECT_EQ(text,
              "型材|料A|A|支|10|10||\n型材|料B|B|支|4|4||\n型材小计|2 种规格||支|14|14||\n"
              "五金件|滑轮|L1|把|4|4||\n五金件|胶条|J1|米|200|200||\n五金件|锁|S1|把|6|0|最低 2|\n"
              "五金件小计|2 种规格||把|10|4||\n五金件小计|1 种规格||米|200|200||\n"
              "其他|螺钉|D1|盒|3|3||\n其他小计|1 种规格||盒|3|3||\n");
    EXPECT_EQ(StockByKindReport(*store_, nullptr).totals[1], "6 种规格");
    EXPECT_EQ(StockByKindReport(*store_, nullptr).rows[5][6], "");
    ClearStock(*store_);
    EXPECT_TRUE(StockByKindReport(*store_, nullptr).rows.empty());
}

TEST_F(StockListTest, NeedsTakeWhatTheStockHas) {
    Confirm(NoteKind::In, "1", "2002-03-05", {Line("A", "10"), Line("B", "4")});
    const std::vector<MaterialNeed> needs = {{"型材", "框", "A", "7", "根", "36米÷6米"},
                                             {"五金件", "锁", "S1", "3", "把", "件数"},
                                             {"型材", "扇", "B", "5", "支", "优化结果"},
                                             {"型材", "扇", "B", "1", "支", "优化结果"}};
    std::string text;
    for (const NeededLine& line : MatchNeeds(*store_, needs, {Line("A", "2"), Line("A", "2")})) {
        text += line.line.name + line.line.unit + line.line.count + " of " + line.needed + ", stock " +
                line.onHand + ", lacks " + line.lacking + "\n";
    }
    // Of the 10 A the note has 4 already; both needs of B share one stock.
    EXPECT_EQ(text,
              "料A支6 of 7, stock 6, lacks 1\n锁把0 of 3, stock 0, lacks 3\n"
              "料B支4 of 5, stock 4, lacks 1\n料B支0 of 1, stock 0, lacks 1\n");
}

}  // namespace
}  // namespace kalvane::test
