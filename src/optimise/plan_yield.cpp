#include "optimise/plan_yield.h"

#include "numeric/number.h"
#include "optimise/pattern_text.h"

namespace kalvane {

std::vector<MaterialYield> PlanYield(const std::vector<PlanRow>& plan, const OptimiseSettings& settings) {
    constexpr double kMillimetresPerMetre = 1000;
    const int allowance = settings.PieceAllowance();
    std::vector<MaterialYield> yields;
    for (const PlanRow& row : plan) {
        if (yields.empty() || yields.back().material != row.material) {
            yields.emplace_back().material = row.material;
        }
        MaterialYield& yield = yields.back();
        const std::int64_t bars = RoundToInt32(ParseNumber(row.count));
        std::int64_t used = 0;  // mm of one bar
        for (const PatternPart& part : ParsePattern(row.pattern)) {
            const int width = part.length + allowance;
            yield.demand.push_back({width, part.count * bars});
            used += std::int64_t{width} * part.count;
        }
        yield.bars += bars;
        if (used > settings.CLC) yield.overfilledBars += bars;
        yield.needMetres += static_cast<double>(used * bars) / kMillimetresPerMetre;
    }
    return yields;
}

}  // namespace kalvane
