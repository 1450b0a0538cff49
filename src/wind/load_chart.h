#pragma once

#include <array>
#include <optional>
#include <vector>

#include "wind/form_texts.h"
#include "wind/wind_tables.h"

namespace kalvane {

/// How the standard load would be at the other heights and terrains of a site.
struct LoadChart {
    /// kN/m², by terrain and row of kHeightMetres. No rows when a number is missing or none.
    std::array<std::vector<double>, kTerrains> wk;
    struct Point {
        std::size_t terrain;
        std::size_t height;
    };
    std::optional<Point> chosen;

    double Highest() const;
};

/// Of frmFY: the gust coefficient follows height and terrain.
LoadChart SlidingLoadChart(const FormTexts& texts);
/// Of FrmMainFY01: the gust coefficient is the one that was typed.
LoadChart FullLoadChart(const FormTexts& base);

}  // namespace kalvane
