#pragma once

#include "store/connection.h"

namespace kalvane {

/// Empties the warehouse: all notes, their lines and the stock list. The note numbers begin at 1 again.
/// Throws StoreError; the tables emptied before the failure stay empty.
void ClearStock(Connection& stock);

}  // namespace kalvane
