#include "wind/wind_settings.h"

#include <algorithm>
#include <array>

#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::string_view kSectionCover = "FM";
constexpr std::string_view kSectionSites = "FYSITES";
constexpr std::string_view kSitesKey = "SITES";
constexpr std::size_t kMostSites = 30;

constexpr std::array<std::pair<std::string_view, std::string CoverTexts::*>, 4> kCoverKeys = {
    {{"GCMC", &CoverTexts::project},
     {"JH", &CoverTexts::checker},
     {"SH", &CoverTexts::reviewer},
     {"JHDW", &CoverTexts::unit}}};

}  // namespace

CoverTexts LoadCover(const SettingsStore& settings) {
    CoverTexts cover;
    for (const auto& [key, text] : kCoverKeys) {
        cover.*text = settings.Read(kSettingsApplication, kSectionCover, key, "");
    }
    return cover;
}

void SaveCover(SettingsStore& settings, const CoverTexts& cover) {
    for (const auto& [key, text] : kCoverKeys) {
        settings.Save(kSettingsApplication, kSectionCover, key, cover.*text);
    }
}

std::vector<Site> LoadSites(const SettingsStore& settings) {
    const std::string lines = settings.Read(kSettingsApplication, kSectionSites, kSitesKey, "");
    std::vector<Site> sites;
    for (std::string_view rest = lines; !rest.empty();) {
        std::string_view line = TakeUpTo(rest, "\n");
        const std::string_view city = TakeUpTo(line, "\t");
        sites.push_back({std::string(city), std::string(line)});
    }
    return sites;
}

void RememberSite(SettingsStore& settings, const Site& site) {
    const bool isOneLine = site.city.find_first_of("\t\n") == std::string::npos;
    if (site.city.empty() || site.pressure.empty() || !isOneLine) return;
    std::vector<Site> sites = LoadSites(settings);
    std::erase_if(sites, [&site](const Site& known) { return known.city == site.city; });
    sites.insert(sites.begin(), site);
    sites.resize(std::min(sites.size(), kMostSites));
    std::string lines;
    for (const Site& known : sites) lines += known.city + "\t" + known.pressure + "\n";
    settings.Save(kSettingsApplication, kSectionSites, kSitesKey, lines);
}

}  // namespace kalvane
