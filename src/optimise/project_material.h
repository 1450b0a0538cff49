#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/notice.h"
#include "store/connection.h"
#include "warehouse/project_needs.h"

namespace kalvane {

/// The bars, fittings and panels of a project's windows, as they are taken from the warehouse: profiles,
/// steels, fittings, panels, each in the order in which the windows first need them.
///
/// Bars of a 规格 are those of the plan in 优化结果 when its pieces (优化数据) are this project's: as many
/// millimetres, but for the rounding of each piece. Otherwise they are the metres needed over the bar length
/// of the catalogue, or where it has none over `usualBar`, in mm, rounded up. Panels are the square metres
/// needed over those of a sheet of the catalogue, rounded up, or the panes themselves where it has no sheet
/// size.
///
/// A window that cannot be worked out is named by the notice; what it needs besides is missing. Throws
/// StoreError.
std::vector<MaterialNeed> MaterialOfProject(Connection& main, const std::string& projectNumber,
                                            std::int16_t usualBar, Notice& notice);

}  // namespace kalvane
