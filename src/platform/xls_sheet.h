#pragma once

#include <filesystem>

#include "platform/sheet_reader.h"

namespace kalvane {

/// ReadFirstSheet for an .xls file. It is read in a process of its own, since the library that reads it may
/// crash on a damaged one.
SheetTexts ReadXlsSheet(const std::filesystem::path& path, int columns);

}  // namespace kalvane
