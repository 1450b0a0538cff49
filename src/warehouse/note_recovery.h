#pragma once

#include <optional>
#include <string>

#include "platform/recovery_shelf.h"
#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// An unsaved note of an earlier screen.
struct RecoveredNote {
    GoodsNote note;               ///< without the lines that stand in the store
    std::size_t storedLines = 0;  ///< how many those are, under note.number
};

/// Keeps what is typed into a note screen in a recovery file (platform/recovery_shelf.h) until the note is
/// confirmed, and hands out what an earlier screen left.
class NoteRecovery {
  public:
    /// The files lie in `folder`.
    NoteRecovery(NoteKind kind, const std::filesystem::path& folder);

    /// True while an unsaved note of an earlier screen is there.
    bool Offers() const { return shelf_.Offers(); }

    /// The latest of them; the note on the screen takes its place, and what was typed before stays for a
    /// later screen. Throws FileError or StoreError.
    RecoveredNote Take(Connection& stock);

    /// Brings the file up to date. Throws FileError.
    void Keep(const GoodsNote& note);
    /// Removes the file of the note on the screen: it is confirmed, or nothing is typed.
    void Discard() { shelf_.Discard(); }

  private:
    const NoteKind kind_;
    RecoveryShelf shelf_;
};

}  // namespace kalvane
