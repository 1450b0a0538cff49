#include "wind/plate.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "wind/wind_tables.h"

namespace kalvane {
namespace {

constexpr double kElasticity = 72000;
constexpr double kPoisson = 0.2;

constexpr std::array<RatioRow, 15> kDeflection = {{{0.00, 0.01302},
                                                   {0.20, 0.01297},
                                                   {0.25, 0.01282},
                                                   {0.33, 0.01223},
                                                   {0.50, 0.01013},
                                                   {0.55, 0.00940},
                                                   {0.60, 0.00867},
                                                   {0.65, 0.00796},
                                                   {0.70, 0.00727},
                                                   {0.75, 0.00663},
                                                   {0.80, 0.00603},
                                                   {0.85, 0.00547},
                                                   {0.90, 0.00496},
                                                   {0.95, 0.00449},
                                                   {1.00, 0.00406}}};

template <std::size_t kRows>
double Interpolated(const std::array<RatioRow, kRows>& table, double ratio) {
    const auto above = std::find_if(table.begin() + 1, table.end() - 1,
                                    [ratio](const RatioRow& row) { return row.ratio >= ratio; });
    const auto below = std::prev(above);
    const double share = (std::clamp(ratio, 0.0, 1.0) - below->ratio) / (above->ratio - below->ratio);
    return below->coefficient + share * (above->coefficient - below->coefficient);
}

}  // namespace

double BendingCoefficient(double ratio) {
    return Interpolated(kBending, ratio);
}

double DeflectionCoefficient(double ratio) {
    return Interpolated(kDeflection, ratio);
}

double GlassStiffness(double thickness) {
    return kElasticity * thickness * thickness * thickness / (12 * (1 - kPoisson * kPoisson));
}

GlassStrength StrengthOfGlass(bool isTempered, double thickness) {
    constexpr std::array<GlassStrength, 3> kFloat = {{{28.0, 19.5}, {24.0, 17.0}, {20.0, 14.0}}};
    constexpr std::array<GlassStrength, 3> kTempered = {{{84.0, 58.8}, {72.0, 50.4}, {59.0, 41.3}}};
    const std::size_t row = thickness <= 12 ? 0 : thickness <= 19 ? 1 : 2;
    return isTempered ? kTempered[row] : kFloat[row];
}

}  // namespace kalvane
