#pragma once

#include <string_view>

#include "page/report.h"
#include "store/connection.h"
#include "warehouse/note_layout.h"

namespace kalvane {

/// A stored note: its head, and a table of its lines. Throws StoreError when there is no note of that number.
Report NoteReport(Connection& stock, NoteKind kind, std::string_view number);

/// The stock list. Throws StoreError.
Report StockReport(Connection& stock);

/// The materials below their minimum. Throws StoreError.
Report LowStockReport(Connection& stock, Connection& own);

}  // namespace kalvane
