#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// What the recovery files of a note begin with.
std::string_view RecoveryStem(NoteKind kind);

/// The text of a recovery file, UTF-8: a column and its text on each line, "Line" before those of a line of
/// the note.
std::string RecoveryText(NoteKind kind, const GoodsNote& note);

/// The note of a recovery file's text. What cannot be read is passed over, since what a damaged file still
/// holds is worth having.
GoodsNote ReadRecoveryText(NoteKind kind, std::string_view text);

/// How many of the note's first lines stand in the store under its number: a program may have ended after
/// the note was written and before its recovery file was removed. 0 when the stored note of that number is
/// another. Throws StoreError.
std::size_t CountStoredLines(Connection& stock, NoteKind kind, const GoodsNote& note);

}  // namespace kalvane
