#include "warehouse/unsaved_note.h"

#include <algorithm>

#include "numeric/number.h"
#include "numeric/text.h"
#include "store/helpers.h"
#include "warehouse/goods_notes.h"

namespace kalvane {
namespace {

constexpr std::string_view kLine = "Line";

template <typename Field, typename Record>
void Append(std::string& text, const std::vector<Field>& fields, const Record& record) {
    for (const Field& field : fields) {
        text += field.column;
        text += ' ';
        text += OnOneLine(record.*field.member);
        text += '\n';
    }
}

template <typename Field, typename Record>
void Take(std::string_view column, std::string_view rest, const std::vector<Field>& fields, Record& record) {
    for (const Field& field : fields) {
        if (field.column == column) record.*field.member = FromOneLine(rest);
    }
}

bool HasSameHead(const NoteLayout& layout, const GoodsNote& a, const GoodsNote& b) {
    return std::all_of(layout.fields.begin(), layout.fields.end(), [&](const NoteField& field) {
        return field.isNumber || a.*field.member == b.*field.member;
    });
}

}  // namespace

std::string_view RecoveryStem(NoteKind kind) {
    return kind == NoteKind::In ? "unsaved-goods-in-" : "unsaved-goods-out-";
}

std::string RecoveryText(NoteKind kind, const GoodsNote& note) {
    const NoteLayout& layout = LayoutOf(kind);
    std::string text;
    Append(text, layout.fields, note);
    for (const NoteLine& line : note.lines) {
        text += kLine;
        text += '\n';
        Append(text, layout.lineFields, line);
    }
    return text;
}

GoodsNote ReadRecoveryText(NoteKind kind, std::string_view text) {
    const NoteLayout& layout = LayoutOf(kind);
    GoodsNote note;
    while (!text.empty()) {
        std::string_view rest = TakeUpTo(text, "\n");
        if (!IsUtf8(rest)) continue;
        const std::string_view column = TakeUpTo(rest, " ");
        if (column == kLine) {
            note.lines.emplace_back();
        } else if (note.lines.empty()) {
            Take(column, rest, layout.fields, note);
        } else {
            Take(column, rest, layout.lineFields, note.lines.back());
        }
    }
    return note;
}

std::size_t CountStoredLines(Connection& stock, NoteKind kind, const GoodsNote& note) {
    const NoteLayout& layout = LayoutOf(kind);
    if (!IsNumeric(note.number) || !RowExists(stock, layout.table, "单据编号", note.number, "N")) return 0;
    const GoodsNote stored = LoadNote(stock, kind, note.number);
    if (!HasSameHead(layout, note, stored)) return 0;
    std::size_t count = 0;
    while (count < std::min(note.lines.size(), stored.lines.size()) &&
           note.lines[count].code == stored.lines[count].code &&
           note.lines[count].count == stored.lines[count].count) {
        ++count;
    }
    return count;
}

}  // namespace kalvane
