#include "warehouse/note_recovery.h"

#include "warehouse/unsaved_note.h"

namespace kalvane {

NoteRecovery::NoteRecovery(NoteKind kind, const std::filesystem::path& folder)
    : kind_(kind), shelf_(folder, std::string(RecoveryStem(kind))) {}

RecoveredNote NoteRecovery::Take(Connection& stock) {
    RecoveredNote recovered{ReadRecoveryText(kind_, shelf_.Take()), 0};
    recovered.storedLines = CountStoredLines(stock, kind_, recovered.note);
    std::vector<NoteLine>& lines = recovered.note.lines;
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(recovered.storedLines));
    return recovered;
}

void NoteRecovery::Keep(const GoodsNote& note) {
    shelf_.Keep(RecoveryText(kind_, note));
}

}  // namespace kalvane
