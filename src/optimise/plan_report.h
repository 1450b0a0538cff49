#pragma once

#include <string_view>

#include "page/report.h"
#include "store/connection.h"

namespace kalvane {

// The two printed reports of the plan in 优化结果, with the rows of CutTable and LoadTotalTable. The last
// column is left to be filled in by hand. They throw StoreError.

/// 材料优化表: how each bar is cut.
Report dsYHB(Connection& connection, std::string_view projectName);

/// 材料优化统计表: bars and mean ratio of each material.
Report dsYHBT(Connection& connection, std::string_view projectName);

}  // namespace kalvane
