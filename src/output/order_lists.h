#pragma once

#include <span>
#include <string>

#include "page/report.h"
#include "page/table_file.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// 采购单: what to buy for the windows in the raw rows. Bars by the cutting plan where 优化结果 has the
/// material, else metres over the bar length of the catalogue, rounded up; panels by square metres and
/// pieces, fittings by their unit. Throws StoreError.
FileTable BuyingList(Connection& connection);

/// 玻璃单: the panels of windows by name and size, with the windows that they are for. Worked out afresh from
/// the windows; one that fails has what stood before the failure. Throws StoreError.
FileTable GlassList(Connection& connection, std::span<const WindowEntry> windows);

/// A list as a report, under the project's name and a line that says what it was made from.
Report ListReport(const FileTable& list, const std::string& project, const std::string& source);

}  // namespace kalvane
