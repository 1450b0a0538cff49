#pragma once

#include <filesystem>
#include <string>

namespace kalvane {

class SettingsStore;

/// What the settings screen keeps as texts, besides the two choices of AppState.
struct CompanySettings {
    std::string name;
    std::string telephone;
    std::string address;
    std::string mainStorePath;  ///< shown only: the stores are those of the start-up folder
    std::string stockStorePath;
};

/// `folder` is the start-up folder, from which the paths that were never saved are made.
CompanySettings ReadCompanySettings(const SettingsStore& store, const std::filesystem::path& folder);

/// Saves the texts as they stand, then the type of the output files and the model of the wind check, "0" or
/// "1". Throws FileError.
void SaveCompanySettings(SettingsStore& store, const CompanySettings& settings, bool toTextFile,
                         bool shortWindCheck);

}  // namespace kalvane
