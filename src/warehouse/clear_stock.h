#pragma once

#include <filesystem>

#include "store/connection.h"

namespace kalvane {

/// Empties the warehouse: all notes, their lines and the stock list. The note numbers begin at 1 again.
/// Throws StoreError; the tables emptied before the failure stay empty.
void ClearStock(Connection& stock);

/// The same after a dated copy of the store, which is returned. Throws StoreError or FileError as well when
/// the copy cannot be made; nothing is emptied then.
std::filesystem::path ClearStockKeepingCopy(Connection& stock);

}  // namespace kalvane
