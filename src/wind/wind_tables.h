#pragma once

#include <array>
#include <cstddef>

namespace kalvane {

// The tables of the wind-pressure checks. A row or column beyond a table is a programming error.

inline constexpr std::size_t kHeights = 19;
inline constexpr std::size_t kTerrains = 4;  ///< A sea coast, B open country, C town, D city centre

/// Heights above the ground of the rows of the next two tables, in metres; the last stands for all above.
inline constexpr std::array<int, kHeights> kHeightMetres = {5,  10,  15,  20,  30,  40,  50,  60,  70, 80,
                                                            90, 100, 150, 200, 250, 300, 350, 400, 450};

/// μz, how the pressure grows with the height over a terrain. GB 50009-2001, table 7.2.1.
float HeightCoefficient(std::size_t height, std::size_t terrain);

/// βgz, how far a gust stands above the mean. GB 50009-2001, table 7.5.1.
float GustCoefficient(std::size_t height, std::size_t terrain);

inline constexpr std::size_t kGlasses = 8;
inline constexpr std::size_t kTemperedGlass = 2;

/// α, the strength of a kind of glass against wind beside float glass, in the order of the list "玻璃类型":
/// float, half-tempered, tempered, laminated, insulating, wired, patterned, fire-resisting. JGJ 113-2003.
double GlassCoefficient(std::size_t glass);

inline constexpr std::size_t kSteelTypes = 2;        ///< channel, square tube
inline constexpr std::size_t kSteelThicknesses = 5;  ///< 1.2, 1.5, 2.0, 2.5, 3.0 mm

/// Second moment of area of the reinforcing steel in cm^4, as its makers give it. The square tube of 2.0 mm
/// is lower than that of 1.5 mm there as well.
float SteelInertia(std::size_t type, std::size_t thickness);

/// Edge ratios (shorter by longer) with their bending coefficient: the largest moment of a pane that is
/// simply supported at four edges is coefficient × load × shorter edge². JGJ 102, glass
/// curtain walls, the table of m.
struct RatioRow {
    double ratio;
    double coefficient;
};
inline constexpr std::array<RatioRow, 15> kBending = {{{0.00, 0.1250},
                                                       {0.25, 0.1230},
                                                       {0.33, 0.1180},
                                                       {0.40, 0.1115},
                                                       {0.50, 0.1000},
                                                       {0.55, 0.0934},
                                                       {0.60, 0.0868},
                                                       {0.65, 0.0804},
                                                       {0.70, 0.0742},
                                                       {0.75, 0.0683},
                                                       {0.80, 0.0628},
                                                       {0.85, 0.0576},
                                                       {0.90, 0.0528},
                                                       {0.95, 0.0483},
                                                       {1.00, 0.0442}}};

/// The row whose ratio is nearest to that of a pane.
std::size_t NearestBendingRow(double ratio);

}  // namespace kalvane
