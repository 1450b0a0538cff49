#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "optimise/bar_bound.h"
#include "optimise/plan.h"
#include "session/optimise_settings.h"

namespace kalvane {

/// What the plan of one material uses.
struct MaterialYield {
    std::string material;
    std::int64_t bars = 0;
    /// Of these, the bars whose pieces do not fit on them: the linear optimiser puts the small pieces that
    /// are left of a material on one bar, however many they are.
    std::int64_t overfilledBars = 0;
    double needMetres = 0;          ///< what the pieces take, each with its allowance
    std::vector<BarDemand> demand;  ///< the pieces that the plan cuts
};

/// Per material, in the order in which the plan names them. A bar is CLC long.
std::vector<MaterialYield> PlanYield(const std::vector<PlanRow>& plan, const OptimiseSettings& settings);

}  // namespace kalvane
