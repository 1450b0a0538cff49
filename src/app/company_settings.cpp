#include "app/company_settings.h"

#include "platform/settings_store.h"
#include "store/store_files.h"

namespace kalvane {

CompanySettings ReadCompanySettings(const SettingsStore& store, const std::filesystem::path& folder) {
    const auto company = [&](std::string_view key) {
        return store.Read(kSettingsApplication, kSectionMain, key, "");
    };
    const auto path = [&](std::string_view key, const char* name) {
        return store.Read(kSettingsPathsApplication, kSectionPaths, key, (folder / name).string());
    };
    return {company("DW"), company("TEL"), company("ADDRESS"), path("CLMDBPATH", kMainStoreName),
            path("CKMDBPATH", kStockStoreName)};
}

void SaveCompanySettings(SettingsStore& store, const CompanySettings& settings, bool toTextFile,
                         bool shortWindCheck) {
    store.Save(kSettingsApplication, kSectionMain, "DW", settings.name);
    store.Save(kSettingsApplication, kSectionMain, "TEL", settings.telephone);
    store.Save(kSettingsApplication, kSectionMain, "ADDRESS", settings.address);
    store.Save(kSettingsPathsApplication, kSectionPaths, "CLMDBPATH", settings.mainStorePath);
    store.Save(kSettingsPathsApplication, kSectionPaths, "CKMDBPATH", settings.stockStorePath);
    store.Save(kSettingsApplication, kSectionMain, "OutPutFileType", toTextFile ? "1" : "0");
    store.Save(kSettingsApplication, kSectionMain, "FYOPTION", shortWindCheck ? "1" : "0");
}

}  // namespace kalvane
