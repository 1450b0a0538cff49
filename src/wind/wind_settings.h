#pragma once

#include <string>
#include <vector>

#include "platform/settings_store.h"
#include "wind/wind_pages.h"

namespace kalvane {

/// The cover's texts that are kept; the date is not.
CoverTexts LoadCover(const SettingsStore& settings);
void SaveCover(SettingsStore& settings, const CoverTexts& cover);

/// A site that was checked before, as it was typed.
struct Site {
    std::string city;
    std::string pressure;  ///< kN/m²
};

/// The latest first, each city once.
std::vector<Site> LoadSites(const SettingsStore& settings);
/// Puts a site first; the oldest ones are forgotten. One without a city or pressure is not kept.
void RememberSite(SettingsStore& settings, const Site& site);

}  // namespace kalvane
