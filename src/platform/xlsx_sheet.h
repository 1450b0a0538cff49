#pragma once

#include <filesystem>

#include "platform/sheet_reader.h"

namespace kalvane {

/// ReadFirstSheet for an .xlsx file (ECMA-376): a zip archive of XML parts.
SheetTexts ReadXlsxSheet(const std::filesystem::path& path, int columns);

}  // namespace kalvane
