#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "numeric/error.h"
#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

inline constexpr std::string_view kIncompleteNote = "数据不完整!请重新输入。";

/// A material in stock; the 规格 alone tells which.
struct StockRow {
    std::string name;
    std::string code;
    std::string unit;
    std::string onHand;
    std::string kind;
};

/// A confirmation that failed on the way. The lines before stand in the store; this one and those behind it
/// do not.
class NoteCut : public StoreError {
  public:
    NoteCut(std::size_t linesWritten, const std::string& text)
        : StoreError(text), linesWritten_(linesWritten) {}

    std::size_t LinesWritten() const { return linesWritten_; }

  private:
    std::size_t linesWritten_;
};

/// The first head field that must be filled and is empty; null when there is none.
const NoteField* FirstEmptyField(NoteKind kind, const GoodsNote& note);

/// The first empty field of a line; null when there is none.
const NoteLineField* FirstEmptyField(NoteKind kind, const NoteLine& line);

/// What the store would refuse in a line: a text longer than its column, an apostrophe, which would end the
/// statement's text, a number that is none or does not fit.
struct LineRefusal {
    const NoteLineField* field;
    std::string text;
};
std::optional<LineRefusal> RefusedField(NoteKind kind, const NoteLine& line);

/// Price times count, summed over the lines in 64 bits and narrowed once to a 32-bit float, in yuan. Throws
/// NumericError when a number is none or the sum does not fit.
std::string AmountOf(std::span<const NoteLine> lines);

/// Writes a note with its lines and brings the stock list up to date, in one step on the disk. The amount of
/// a goods-in note is that of its lines, whatever it says. Throws StoreError when the head is refused, and
/// then nothing is written; NoteCut when a line is, or a goods-out line has no stock row.
void ConfirmNote(Connection& stock, NoteKind kind, GoodsNote note);

/// Throws StoreError when there is no note of that number.
GoodsNote LoadNote(Connection& stock, NoteKind kind, std::string_view number);

/// The stock of a kind of material.
std::vector<StockRow> StockOfKind(Connection& stock, std::string_view kind);

/// Why a line with that count cannot be taken from a stock row, one line with another left aside; empty when
/// it can. `count` is typed.
std::string PickRefusal(std::string_view count, std::string_view onHand);

}  // namespace kalvane
