#pragma once

#include <string>
#include <vector>

#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// One line of a note, as it moved the stock of a 规格.
struct Movement {
    NoteKind note = NoteKind::In;
    std::string number;  ///< 单据编号 of the note
    std::string date;    ///< of the note; empty when the line has no note
    std::string purpose;
    std::string count;    ///< that went in or out
    std::string balance;  ///< after it
};

/// What came and went of a 规格.
struct StockCard {
    /// In stock before the first movement: what the stock list has beyond the notes, from a store of another
    /// program for one. "0" as a rule.
    std::string opening;
    std::vector<Movement> movements;
};

/// The movements of a 规格 by their day; on one day what came in before what went out, then by number. The
/// last balance is the 库存量 of the stock list. Throws StoreError.
StockCard MovementsOf(Connection& stock, const std::string& code);

}  // namespace kalvane
