#include "wind/wind_tables.h"

#include <algorithm>
#include <cmath>

#include "numeric/assertion.h"

namespace kalvane {
namespace {

/// A row a height, a column a terrain.
using Table = std::array<std::array<float, kTerrains>, kHeights>;

constexpr Table kHeightCoefficients = {{
    {1.17F, 1.00F, 0.74F, 0.62F}, {1.38F, 1.00F, 0.74F, 0.62F}, {1.52F, 1.14F, 0.74F, 0.62F},
    {1.63F, 1.25F, 0.84F, 0.62F}, {1.80F, 1.42F, 1.00F, 0.62F}, {1.92F, 1.56F, 1.13F, 0.73F},
    {2.03F, 1.67F, 1.25F, 0.84F}, {2.12F, 1.77F, 1.35F, 0.93F}, {2.20F, 1.86F, 1.45F, 1.02F},
    {2.27F, 1.95F, 1.54F, 1.11F}, {2.34F, 2.02F, 1.62F, 1.19F}, {2.40F, 2.09F, 1.70F, 1.27F},
    {2.64F, 2.38F, 2.03F, 1.61F}, {2.83F, 2.61F, 2.30F, 1.92F}, {2.99F, 2.80F, 2.54F, 2.19F},
    {3.12F, 2.97F, 2.75F, 2.45F}, {3.12F, 3.12F, 2.94F, 2.68F}, {3.12F, 3.12F, 3.12F, 2.91F},
    {3.12F, 3.12F, 3.12F, 3.12F},
}};

constexpr Table kGustCoefficients = {{
    {1.69F, 1.88F, 2.30F, 3.21F}, {1.63F, 1.78F, 2.10F, 2.76F}, {1.60F, 1.72F, 1.99F, 2.54F},
    {1.58F, 1.69F, 1.92F, 2.39F}, {1.54F, 1.64F, 1.83F, 2.21F}, {1.52F, 1.60F, 1.77F, 2.09F},
    {1.51F, 1.58F, 1.73F, 2.01F}, {1.49F, 1.56F, 1.69F, 1.94F}, {1.48F, 1.54F, 1.66F, 1.89F},
    {1.47F, 1.53F, 1.64F, 1.85F}, {1.47F, 1.52F, 1.62F, 1.81F}, {1.46F, 1.51F, 1.60F, 1.78F},
    {1.43F, 1.47F, 1.54F, 1.67F}, {1.42F, 1.44F, 1.50F, 1.60F}, {1.40F, 1.42F, 1.46F, 1.55F},
    {1.39F, 1.41F, 1.44F, 1.51F}, {1.39F, 1.41F, 1.44F, 1.51F}, {1.39F, 1.41F, 1.44F, 1.51F},
    {1.39F, 1.41F, 1.44F, 1.51F},
}};

constexpr std::array<double, kGlasses> kGlassCoefficients = {1.0, 1.6, 2.0, 0.8, 1.5, 0.5, 0.6, 3.0};

constexpr std::array<std::array<float, kSteelThicknesses>, kSteelTypes> kSteelInertia = {{
    {1.045F, 1.2428F, 1.6455F, 1.9751F, 2.26F},
    {0.9675F, 1.1658F, 1.0602F, 1.711F, 1.9268F},
}};

float Entry(const Table& table, std::size_t height, std::size_t terrain) {
    KALVANE_ASSERT(height < kHeights && terrain < kTerrains);
    return table[height][terrain];
}

}  // namespace

float HeightCoefficient(std::size_t height, std::size_t terrain) {
    return Entry(kHeightCoefficients, height, terrain);
}

float GustCoefficient(std::size_t height, std::size_t terrain) {
    return Entry(kGustCoefficients, height, terrain);
}

double GlassCoefficient(std::size_t glass) {
    KALVANE_ASSERT(glass < kGlasses);
    return kGlassCoefficients[glass];
}

float SteelInertia(std::size_t type, std::size_t thickness) {
    KALVANE_ASSERT(type < kSteelTypes && thickness < kSteelThicknesses);
    return kSteelInertia[type][thickness];
}

std::size_t NearestBendingRow(double ratio) {
    const auto nearest =
        std::min_element(kBending.begin(), kBending.end(), [ratio](const RatioRow& a, const RatioRow& b) {
            return std::fabs(a.ratio - ratio) < std::fabs(b.ratio - ratio);
        });
    return static_cast<std::size_t>(nearest - kBending.begin());
}

}  // namespace kalvane
