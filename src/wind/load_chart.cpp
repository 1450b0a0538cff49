#include "wind/load_chart.h"

#include <algorithm>

#include "numeric/error.h"

namespace kalvane {
namespace {

constexpr double kHighBuilding = 1.1;

/// `gust` is 0 for that of the table.
LoadChart Chart(const FormTexts& texts, std::string_view terrainList, std::string_view heightList,
                double factor, double gust) {
    LoadChart chart;
    for (std::size_t terrain = 0; terrain < kTerrains; ++terrain) {
        for (std::size_t height = 0; height < kHeights; ++height) {
            const double bgz = gust > 0 ? gust : GustCoefficient(height, terrain);
            chart.wk[terrain].push_back(factor * bgz * HeightCoefficient(height, terrain));
        }
    }
    const std::optional<std::size_t> terrain = texts.Chosen(terrainList);
    const std::optional<std::size_t> height = texts.Chosen(heightList);
    if (terrain && height) chart.chosen = LoadChart::Point{*terrain, *height};
    return chart;
}

}  // namespace

double LoadChart::Highest() const {
    double highest = 0;
    for (const std::vector<double>& line : wk) {
        for (const double value : line) highest = std::max(highest, value);
    }
    return highest;
}

LoadChart SlidingLoadChart(const FormTexts& texts) {
    try {
        const double high = texts.Choice("cmbJZWLX") != 0 ? kHighBuilding : 1;
        const double factor = high * texts.Float("cmbFHZTXXS") * texts.Float("txtFYZ");
        return Chart(texts, "cmbDMCCD", "cmbJZGD", factor, 0);
    } catch (const NumericError&) {
        return {};
    }
}

LoadChart FullLoadChart(const FormTexts& base) {
    try {
        const double gust = base.LeadingFloat("Text6");
        if (!(gust > 0)) return {};
        const double factor = static_cast<double>(base.LeadingFloat("Text7")) * base.LeadingFloat("Text3");
        return Chart(base, "Combo2", "Combo3", factor, gust);
    } catch (const NumericError&) {
        return {};
    }
}

}  // namespace kalvane
