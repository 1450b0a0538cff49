#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "optimise/run_progress.h"
#include "platform/notice.h"
#include "session/optimise_settings.h"
#include "store/connection.h"

namespace kalvane {

/// The materials that the gathered demand names, in the order of their 规格. A demand typed by hand has an
/// empty one.
std::vector<std::string> ListMaterials(Connection& connection);

/// Empties 优化结果 and lays out the bars of each material in turn. `scheme` 0 is the practical optimiser,
/// any other the linear one; `materials` are 规格 texts.
///
/// A failure is shown under "出错" and ends the run, or with the linear optimiser its material only; the
/// rows already written stay. Nothing is thrown for it.
RunEnd RunOptimisation(Connection& connection, const OptimiseSettings& settings, std::int16_t scheme,
                       const std::vector<std::string>& materials, Notice& notice,
                       const RunProgress& progress);

}  // namespace kalvane
