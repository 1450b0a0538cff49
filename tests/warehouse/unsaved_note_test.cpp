#include "warehouse/unsaved_note.h"

#include <csignal>

#include "platform/recovery_shelf.h"
#include "store/helpers.h"
#include "support/killed_child.h"
#include "support/stock_store.h"
#include "warehouse/goods_notes.h"

namespace kalvane::test {
namespace {

class UnsavedNoteTest : public StockStoreTest {
  protected:
    RecoveryShelf Shelf(NoteKind kind) const { return {folder_.Path(), std::string(RecoveryStem(kind))}; }
};

TEST_F(UnsavedNoteTest, TheTextHoldsTheWholeNote) {
    GoodsNote note = Note("12", {Line("A", "10"), {}});
    note.lines[0].name = "上滑 45\\n\n两行";
    note.paperNumber = "";
    const std::string text = RecoveryText(NoteKind::In, note);
    EXPECT_EQ(RecoveryText(NoteKind::In, ReadRecoveryText(NoteKind::In, text)), text);
    const GoodsNote read = ReadRecoveryText(NoteKind::In, text);
    EXPECT_EQ(read.supplier + read.number + read.lines.at(0).name + read.lines.at(0).price,
              "甲厂12上滑 45\\n\n两行2.5");
    EXPECT_EQ(read.lines.size(), 2U);

    const GoodsNote damaged = ReadRecoveryText(
        NoteKind::Out, "用途 生产\n来料来源 x\nLine\n单价 3\n规格 A\nrubbish\n\xFF\xFE\nLine\n规格 B");
    EXPECT_EQ(damaged.purpose + damaged.supplier, "生产");
    ASSERT_EQ(damaged.lines.size(), 2U);
    EXPECT_EQ(damaged.lines[0].code + damaged.lines[0].price + damaged.lines[1].code, "AB");
}

TEST_F(UnsavedNoteTest, LinesThatStandInTheStoreAreCounted) {
    const GoodsNote note = Note("1", {Line("A", "10"), Line("B", "1"), Line("A", "2")});
    EXPECT_EQ(CountStoredLines(*store_, NoteKind::In, note), 0U);
    ConfirmNote(*store_, NoteKind::In, Note("1", {note.lines[0], note.lines[1]}));
    EXPECT_EQ(CountStoredLines(*store_, NoteKind::In, note), 2U);
    EXPECT_EQ(CountStoredLines(*store_, NoteKind::Out, note), 0U);
    GoodsNote other = note;
    other.paperNumber = "P-8";
    EXPECT_EQ(CountStoredLines(*store_, NoteKind::In, other), 0U) << "another note took the number";
    other = note;
    other.lines[0].count = "11";
    EXPECT_EQ(CountStoredLines(*store_, NoteKind::In, other), 0U);
    other.number = "1 or 1=1";
    EXPECT_EQ(CountStoredLines(*store_, NoteKind::In, other), 0U);
}

// The road of a note screen: the recovery file is written, the note confirmed, the file removed.
TEST_F(UnsavedNoteTest, AKilledConfirmationIsOfferedAgainAndCountsOnce) {
    std::vector<NoteLine> lines;
    for (int i = 0; i < 100; ++i) lines.push_back(Line(std::to_string(i % 7), "3"));
    store_.reset();
    int offered = 0;
    for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        RunAndBeKilled([&] {
            Connection store(file_, StoreKind::Stock);
            RecoveryShelf shelf = Shelf(NoteKind::In);
            const auto confirm = [&] {
                GoodsNote note = Note(NextEnterNo(store), lines);
                shelf.Keep(RecoveryText(NoteKind::In, note));
                ConfirmNote(store, NoteKind::In, note);
                shelf.Discard();
            };
            confirm();  // however slow the machine is
            ualarm(static_cast<useconds_t>(2000 + 1500 * round), 0);
            for (;;) confirm();
        });
        store_ = std::make_unique<Connection>(file_, StoreKind::Stock);
        RecoveryShelf shelf = Shelf(NoteKind::In);
        while (shelf.Offers()) {
            ++offered;
            GoodsNote note = ReadRecoveryText(NoteKind::In, shelf.Take());
            ASSERT_EQ(note.lines.size(), lines.size());
            const std::size_t stored = CountStoredLines(*store_, NoteKind::In, note);
            ASSERT_TRUE(stored == 0 || stored == lines.size()) << stored;
            if (stored == 0) ConfirmNote(*store_, NoteKind::In, note);
            shelf.Discard();
        }
        // Every note stands once and whole, and the stock is the sum of its lines: 3 each.
        const double notes = store_->OpenCursor("Select count(*) from 入库单").Field(0).Number();
        EXPECT_EQ(store_->OpenCursor("Select sum(库存量) from 库存表").Field(0).Number(), notes * 300);
        EXPECT_EQ(store_->OpenCursor("Select count(*) from 入库单子表").Field(0).Number(), notes * 100);
        EXPECT_EQ(store_->OpenCursor("Select max(单据编号) from 入库单").Field(0).Number(), notes);
        store_.reset();
    }
    EXPECT_GT(offered, 0) << "no round was killed at a note";
}

}  // namespace
}  // namespace kalvane::test
