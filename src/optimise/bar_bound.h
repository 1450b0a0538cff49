#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "optimise/pattern_master.h"
#include "optimise/pattern_pricing.h"

namespace kalvane {

/// Pieces of one length that a bound is asked for.
struct BarDemand {
    int width = 0;           ///< what a piece occupies of the bar, mm: its length and the piece allowance
    std::int64_t count = 0;  ///< pieces
};

/// How many bars the pieces take at the least, whatever the plan.
///
/// It starts with the total width over the bar's length, rounded up, and proceeds to the optimum of the
/// pattern programme by column generation. The programme's arithmetic is floating, but the bound is never
/// taken from it: at each step the prices are cut to whole numbers Y and the most valuable pattern is found
/// exactly; if it is worth Z, every bar gives at most Z, so no plan takes fewer than (sum of count * Y) / Z
/// bars (Farley, A note on bounding a class of linear programming problems, Operations Research 38, 1990).
/// So Bars() is safe after any number of steps.
class BarBound {
  public:
    /// `stock` is the bar in mm. Lengths may come more than once. When a piece does not fit, or takes nothing
    /// of the bar, there is no bound: Bars() is 0 and nothing is to be done.
    BarBound(int stock, const std::vector<BarDemand>& demand);

    /// Improves the bound by one step of some milliseconds; false when there is no more to do.
    bool Step();

    std::int64_t Bars() const { return bars_; }

    /// True when the pattern programme was carried to its optimum; false while steps are left, and for
    /// demands of so many lengths that a step would take too long.
    bool IsOptimal() const { return isOptimal_; }

  private:
    struct Programme {
        std::vector<std::int64_t> demand;
        PatternMaster master;
        PatternPricing pricing;
    };

    void StartProgramme(int stock, const std::vector<BarDemand>& merged);

    std::int64_t bars_ = 0;
    bool isOptimal_ = false;
    int stepsLeft_ = 0;
    std::optional<Programme> programme_;  ///< nothing when no step is left
};

}  // namespace kalvane
