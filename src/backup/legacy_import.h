#pragma once

#include <filesystem>

#include "platform/notice.h"
#include "store/connection.h"

namespace kalvane {

/// Takes over a store of the V3.0 layout: its 16 tables replace those of the main store, each value passed
/// through the general text format (Null stays Null), and the drawings are rebuilt from the drawing files
/// that 门窗.图名 names. A drawing that cannot be read or stored is left out: its window type then has an
/// empty one. Arcs stay in the library. A message reports the end, or that the file cannot be opened.
/// Throws StoreError when a statement is refused, with what was done before it kept.
void ImportLegacyDatabase(Connection& main, const std::filesystem::path& file, Notice& notice);

}  // namespace kalvane
