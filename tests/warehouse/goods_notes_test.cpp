#include "warehouse/goods_notes.h"

#include "store/helpers.h"
#include "support/faulty_disk.h"
#include "support/killed_child.h"
#include "support/refusal.h"
#include "support/stock_store.h"
#include "warehouse/clear_stock.h"
#include "warehouse/material_proposals.h"
#include "warehouse/note_reports.h"
#include "warehouse/stock_query.h"
#include "warehouse/stock_shortage.h"

namespace kalvane::test {
namespace {

class WarehouseTest : public StockStoreTest {
  protected:
    /// What differs between the stock list and the sums of the stored lines; empty when nothing does.
    std::string Imbalance() {
        std::string faults;
        for (Cursor row = store_->OpenCursor("Select 规格,入库量,库存量 from 库存表"); !row.Eof();
             row.MoveNext()) {
            const std::string where = " where 规格='" + row.Field(0).Text() + "'";
            const auto sum = [&](const char* table) {
                const Cursor total =
                    store_->OpenCursor(std::string("Select sum(数量) from ") + table + where);
                return total.Field(0).IsNull() ? 0 : total.Field(0).Number();
            };
            const double in = sum("入库单子表");
            if (row.Field(1).Number() != in || row.Field(2).Number() != in - sum("出库单子表")) {
                faults += row.Field(0).Text() + " ";
            }
        }
        return faults;
    }
};

TEST_F(WarehouseTest, NotesMoveTheStock) {
    EXPECT_EQ(NextEnterNo(*store_), "1");
    // A and A again: the first line makes the row, the second adds. 2.5*10 + 3*4 + 2.5*1 = 39.5.
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "10"), Line("B", "4", "3"), Line("A", "1")}));
    EXPECT_EQ(Rows("Select * from 入库单"), "1|甲厂|39.5|生产|P-7|王|2002-03-04");
    EXPECT_EQ(Rows("Select * from 入库单子表"),
              "1|料A|A|支|2.5|10|型材\n1|料B|B|支|3|4|型材\n1|料A|A|支|2.5|1|型材");
    EXPECT_EQ(Rows("Select * from 库存表"), "料A|A|甲厂|支|型材|11|11\n料B|B|甲厂|支|型材|4|4");
    EXPECT_EQ(NextEnterNo(*store_) + NextPostNo(*store_), "21");

    // Another name under a known 规格 goes to its row, and two lines may go below zero together.
    NoteLine other = Line("A", "11");
    other.name = "别名";
    ConfirmNote(*store_, NoteKind::Out, Note("1", {other, Line("A", "2"), Line("B", "4")}));
    EXPECT_EQ(Rows("Select * from 出库单"), "1|生产|P-7|王|2002-03-04");
    EXPECT_EQ(Rows("Select * from 出库单子表"), "1|别名|A|支|11|型材\n1|料A|A|支|2|型材\n1|料B|B|支|4|型材");
    EXPECT_EQ(Rows("Select 入库量,库存量 from 库存表"), "11|-2\n4|0");

    const GoodsNote loaded = LoadNote(*store_, NoteKind::In, "1");
    EXPECT_EQ(loaded.supplier + loaded.amount + loaded.date, "甲厂39.52002-03-04");
    ASSERT_EQ(loaded.lines.size(), 3U);
    EXPECT_EQ(loaded.lines[1].price + loaded.lines[1].kind, "3型材");
    EXPECT_NE(Refusal([&] { LoadNote(*store_, NoteKind::Out, "2"); }), "");

    ClearStock(*store_);
    EXPECT_EQ(NextEnterNo(*store_) + NextPostNo(*store_), "11");
}

TEST_F(WarehouseTest, TheAmountIsASumIn64BitsNarrowedOnce) {
    // 16777216 is the first whole number after which 32-bit floats skip one.
    EXPECT_EQ(AmountOf(std::vector{Line("A", "16777216", "1"), Line("A", "1", "1"), Line("A", "1", "1")}),
              "1.677722E+07");
    EXPECT_EQ(AmountOf(std::vector{Line("A", "3", "0.1"), Line("B", "1", "1450")}), "1450.3");
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "20000000", "1")}));
    EXPECT_EQ(Rows("Select 采购金额 from 入库单"), "2E+07");
}

TEST_F(WarehouseTest, LinesAreCheckedBeforeTheyAreHandedOver) {
    const NoteLine good = Line("A", "2147483647", "0.5");
    EXPECT_FALSE(RefusedField(NoteKind::In, good));
    const std::string fifty(50, 'x');
    const struct {
        std::string NoteLine::*member;
        std::string text;
        const char* column;  // refused; empty when it is not
    } kCases[] = {
        {&NoteLine::name, fifty, ""},
        {&NoteLine::name, fifty + "x", "名称"},
        {&NoteLine::code, "a'b", "规格"},
        {&NoteLine::kind, fifty + "x", "种类"},
        {&NoteLine::price, "1.2.3", "单价"},
        {&NoteLine::price, ".", "单价"},
        {&NoteLine::price, "5.", ""},
        {&NoteLine::price, ".5", ""},
        {&NoteLine::count, "2147483648", "数量"},
        {&NoteLine::count, "1.5", "数量"},
        {&NoteLine::price, std::string(39, '9'), "单价"},
    };
    int number = 0;
    for (const auto& c : kCases) {
        NoteLine line = Line("N" + std::to_string(++number), "1");
        line.*c.member = c.text;
        const auto refusal = RefusedField(NoteKind::In, line);
        EXPECT_EQ(refusal ? refusal->field->column : "", c.column) << c.text;
        // What is let through is never refused by the store.
        if (!refusal) ConfirmNote(*store_, NoteKind::In, Note("1", {line}));
        NoteLine empty = good;
        (empty.*c.member).clear();
        ASSERT_NE(FirstEmptyField(NoteKind::In, empty), nullptr);
    }
    EXPECT_EQ(FirstEmptyField(NoteKind::In, good), nullptr);
    GoodsNote note = Note("1", {});
    note.clerk = note.purpose = "";
    EXPECT_EQ(FirstEmptyField(NoteKind::In, note)->box, "TxtYT");

    for (const auto& [count, refusal] :
         std::vector<std::pair<std::string, std::string>>{{"", "数据不能为0!请重新输入。"},
                                                          {"0", "数据不能为0!请重新输入。"},
                                                          {"10", ""},
                                                          {"11", "数据不能大于10,请重新输入!"}}) {
        EXPECT_EQ(PickRefusal(count, "10"), refusal) << count;
    }
}

TEST_F(WarehouseTest, AFailureLeavesWholeLinesAndNamesTheOneThatFailed) {
    GoodsNote note = Note("1", {Line("A", "1")});
    note.clerk = "名字比十个字符还要长的人";
    EXPECT_NE(Refusal([&] { ConfirmNote(*store_, NoteKind::In, note); }), "");
    EXPECT_EQ(Rows("Select * from 入库单") + Rows("Select * from 入库单子表"), "");

    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "2147483647", "0"), Line("B", "5")}));
    const struct {
        NoteKind kind;
        NoteLine line;  // refused, behind one that is not
    } kCases[] = {
        {NoteKind::In, Line("A", "1")}, {NoteKind::Out, Line("C", "1")}, {NoteKind::Out, Line("'", "1")}};
    for (const auto& c : kCases) {
        try {
            ConfirmNote(*store_, c.kind, Note("7", {Line("B", "1"), c.line, Line("B", "1")}));
            ADD_FAILURE();
        } catch (const NoteCut& cut) {
            EXPECT_EQ(cut.LinesWritten(), 1U);
            EXPECT_NE(std::string(cut.what()).find("第 2 行（规格“" + c.line.code + "”）"),
                      std::string::npos);
        }
        EXPECT_EQ(Imbalance(), "");
    }
    EXPECT_EQ(Rows("Select sum(数量) from 出库单子表"), "2");
}

TEST_F(WarehouseTest, ADiskThatFailsLeavesAWholeNoteOrNone) {
    FaultyDisk disk;
    int failures = 0;
    for (int operation = 1;; ++operation) {
        ASSERT_LT(operation, 1000);
        store_ = std::make_unique<Connection>(file_, StoreKind::Stock);
        const std::string number = NextEnterNo(*store_);
        disk.FailAt(operation, FaultyDisk::Mode::Lasting);
        const std::string refusal = Refusal([&] {
            ConfirmNote(*store_, NoteKind::In, Note(number, {Line("A", "1"), Line(number, "2")}));
        });
        const bool hasFailed = disk.Heal();
        store_ = std::make_unique<Connection>(file_, StoreKind::Stock);
        const std::string lines = Rows("Select * from 入库单子表 where 单据编号=" + number);
        EXPECT_EQ(NextEnterNo(*store_) == number, lines.empty()) << operation;
        EXPECT_EQ(Imbalance(), "") << operation;
        if (!refusal.empty()) ++failures;
        if (!hasFailed) break;
    }
    EXPECT_GT(failures, 3);
}

TEST_F(WarehouseTest, AKillInTheMiddleLeavesTheStockEqualToItsLines) {
    std::vector<NoteLine> lines;
    for (int i = 0; i < 200; ++i) lines.push_back(Line(std::to_string(i % 7), "3"));
    store_.reset();
    for (int round = 0; round < 10; ++round) {
        RunAndBeKilled([&] {
            Connection store(file_, StoreKind::Stock);
            const auto takeIn = [&] { ConfirmNote(store, NoteKind::In, Note(NextEnterNo(store), lines)); };
            takeIn();  // however slow the machine is
            ualarm(static_cast<useconds_t>(3000 + 2500 * round), 0);
            for (;;) {
                takeIn();
                ConfirmNote(store, NoteKind::Out, Note(NextPostNo(store), {Line("3", "1"), Line("5", "2")}));
            }
        });
        store_ = std::make_unique<Connection>(file_, StoreKind::Stock);
        store_->CheckIntegrity();
        EXPECT_EQ(Imbalance(), "") << round;
        const auto notes = store_->OpenCursor("Select * from 入库单").RecordCount();
        EXPECT_EQ(store_->OpenCursor("Select * from 入库单子表").RecordCount(), notes * 200);
        store_.reset();
    }
}

TEST_F(WarehouseTest, FiltersAreCheckedByTheTypeOfTheirField) {
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "1", "1450.3")}));
    ConfirmNote(*store_, NoteKind::In, Note("2", {Line("A", "2", "2")}));
    store_->Execute("Update 入库单 set 采购日期='2002-3-5 8:00' where 单据编号=2");
    constexpr const char* kNoNumber = "数据是数值类型,请正确输入!";
    constexpr const char* kNoDate = "数据是日期类型(2002-03-04),请正确输入!";
    const struct {
        const char* table;
        const char* field;
        const char* value;
        const char* answer;  // what refuses the filter, or the numbers of the notes found
    } kCases[] = {
        {"入库单", "", "1", "字段名不能为空!"},
        {"入库单", "单据编号", "", "字段值不能为空!"},
        {"入库单", "单据编号", "2", "2"},
        {"入库单", "单据编号", "2x", kNoNumber},
        {"入库单", "采购金额", "1450.3", "1"},
        {"入库单", "采购金额", "一", kNoNumber},
        {"入库单", "来料来源", "甲厂", "1\n2"},
        {"入库单", "来料来源", "甲", ""},
        {"入库单", "采购日期", "2002-03-04", "1"},
        {"入库单", "采购日期", "2002年3月4日", "1"},
        {"入库单", "采购日期", "2002-03-05", ""},  // its note has a time
        {"入库单", "采购日期", "2002-02-30", kNoDate},
        {"入库单", "采购日期", "37319", kNoDate},
        {"出库单", "出库日期", "昨天", kNoDate},
        {"库存表", "库存量", "三", kNoNumber},
    };
    for (const auto& c : kCases) {
        const Column* column = FindColumn(*FindTable(c.table), c.field);
        const FieldType type = column == nullptr ? FieldType::Text : FieldTypeOf(*column);
        std::string answer;
        if (const auto refusal = RefusedFilter(c.field, c.value, type)) {
            answer = refusal->text;
        } else {
            for (const auto& row :
                 TextRows(store_->OpenCursor(QueryStatement(c.table, c.field, c.value, type)))) {
                answer += (answer.empty() ? "" : "\n") + row[0];
            }
        }
        EXPECT_EQ(answer, c.answer) << c.field << "=" << c.value;
    }
    EXPECT_EQ(QueryStatement("库存表"), "Select * from 库存表 ");
    EXPECT_EQ(QueryStatement("库存表", "库存量", "3", FieldType::Int32),
              "Select * from 库存表  where 库存量=3");
    EXPECT_EQ(QueryStatement("入库单", "采购日期", "2002/3/4", FieldType::Date),
              "Select * from 入库单  where 采购日期=37319");
}

TEST_F(WarehouseTest, ReportsTakeTheWordsOfTheNote) {
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "10"), Line("B", "4", "3")}));
    ConfirmNote(*store_, NoteKind::Out, Note("1", {Line("A", "3")}));
    const Report in = NoteReport(*store_, NoteKind::In, "1");
    EXPECT_EQ(in.title, "入库单报表");
    EXPECT_EQ(in.heading, (std::vector<ReportLine>{{"自动编号:1", "来料来源:甲厂"},
                                                   {"采购金额:37元", "用    途:生产"},
                                                   {"单据编号:P-7", "采购员:王"},
                                                   {"采购日期:2002-03-04", ""}}));
    ASSERT_EQ(in.columns.size(), 6U);
    EXPECT_EQ(in.columns[3].head, "单价");
    EXPECT_EQ(in.columns[3].align, ReportAlign::Right);
    EXPECT_EQ(in.rows[1], (std::vector<std::string>{"料B", "B", "支", "3", "4", "型材"}));
    const Report out = NoteReport(*store_, NoteKind::Out, "1");
    EXPECT_EQ(out.title + out.heading[1][0], "出库单报表领 料 人:P-7");
    EXPECT_EQ(out.rows, (std::vector<std::vector<std::string>>{{"料A", "A", "支", "3", "型材"}}));
    EXPECT_EQ(StockReport(*store_).rows[0],
              (std::vector<std::string>{"料A", "A", "甲厂", "支", "型材", "10", "7"}));
    EXPECT_NE(Refusal([&] { NoteReport(*store_, NoteKind::In, "9"); }), "");
}

TEST_F(WarehouseTest, MaterialsAreProposedFromTheStockAndTheCatalogue) {
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "1", "2"), Line("A", "1", "3.5")}));
    const std::filesystem::path file = folder_ / kMainStoreName;
    CreateStore(file, StoreKind::Main);
    Connection catalogue(file, StoreKind::Main);
    catalogue.Execute("Insert into 型材 (型材名称,型材型号) values('上滑','A')");  // in stock already
    catalogue.Execute("Insert into 型钢 (型钢名称,型钢规格) values('衬钢','G1')");
    catalogue.Execute("Insert into 玻璃 (玻璃名称) values('5mm白玻')");
    catalogue.Execute("Insert into 配件 (配件名称,配件规格,配件单位) values('月牙锁','S2','把   ')");
    std::string proposed;
    for (const NoteLine& material : ProposedMaterials(*store_, &catalogue)) {
        proposed += material.name + "," + material.code + "," + material.unit + "," + material.kind + ";";
    }
    EXPECT_EQ(proposed, "料A,A,支,型材;衬钢,G1,支,型钢;5mm白玻,5mm白玻,块,板材;月牙锁,S2,把,五金件;");
    EXPECT_EQ(ProposedMaterials(*store_, nullptr).size(), 1U);
    EXPECT_EQ(LastPrice(*store_, "A") + LastPrice(*store_, "G1"), "3.5");
}

TEST_F(WarehouseTest, ShortagesAreThoseOfTheLinesTogether) {
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "10"), Line("B", "4")}));
    const std::vector<NoteLine> lines = {Line("A", "6"), Line("B", "4"), Line("A", "5")};
    EXPECT_EQ(ShortageText(FindShortages(*store_, lines)), "规格“A”：出库 11，库存 10");
}

TEST_F(WarehouseTest, ClearingKeepsACopy) {
    ConfirmNote(*store_, NoteKind::In, Note("1", {Line("A", "10")}));
    Connection copy(ClearStockKeepingCopy(*store_), StoreKind::Stock);
    EXPECT_EQ(test::Rows(copy, "Select 规格 from 库存表"), "A");
    EXPECT_EQ(Rows("Select * from 库存表"), "");
}

}  // namespace
}  // namespace kalvane::test
