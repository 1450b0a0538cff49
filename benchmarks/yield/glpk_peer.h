#pragma once

#include <cstdint>
#include <map>

namespace kalvane::bench {

/// What the linear programming kit makes of a demand.
struct PeerPlan {
    std::int64_t bound = 0;  ///< the pattern programme's optimum, rounded up
    std::int64_t bars = 0;   ///< best plan of whole bars over its patterns
    bool isProven = false;   ///< no better one over these patterns; else time ran out
};

/// Solves the pattern programme with GLPK by column generation, and then for whole bars over the patterns
/// that came up, for `seconds` at most. It shares nothing with the program's own bound. `demand`: pieces by
/// what they take of a bar of `stock` mm. The program ends when the plan does not hold the demand.
PeerPlan SolveWithGlpk(int stock, const std::map<int, int>& demand, int seconds);

}  // namespace kalvane::bench
