#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace kalvane {

/// Per-user settings: texts addressed by application, section and key. The default applies at the read, so
/// one key may have different defaults in different places. Each save reaches the disk before it returns, and
/// changes its own key alone: what another program has saved meanwhile stays.
class SettingsStore {
  public:
    /// The file need not exist. An unreadable line is skipped, since a damaged setting must not keep the
    /// program from starting.
    explicit SettingsStore(std::filesystem::path file);

    /// The platform's place for it: $XDG_CONFIG_HOME/kalvane/settings, or ~/.config/kalvane/settings.
    static std::filesystem::path DefaultFile();

    std::string Read(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view fallback) const;

    /// A file that cannot be written is not reported: the value then holds for this run only.
    void Save(std::string_view application, std::string_view section, std::string_view key,
              std::string_view text);

  private:
    /// Takes in what the file holds now.
    void Load();

    std::filesystem::path file_;
    std::map<std::string, std::string> values_;   ///< by "application/section/key"
    std::map<std::string, std::string> unsaved_;  ///< those of this run that the file does not hold yet
};

/// Application and section names in use.
inline constexpr std::string_view kSettingsApplication = "Tesmar";
inline constexpr std::string_view kSettingsPathsApplication = "Norvex";
inline constexpr std::string_view kSectionMain = "KALVANE";
inline constexpr std::string_view kSectionPaths = "Param";
inline constexpr std::string_view kSectionOptimiser = "YHOPTION";
inline constexpr std::string_view kSectionScreens = "SCREENS";  // remembered geometry and folders

}  // namespace kalvane
