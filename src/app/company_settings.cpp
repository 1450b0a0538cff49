#include "app/company_settings.h"

#include "platform/settings_store.h"
#include "session/settings_in_force.h"
#include "store/store_files.h"

namespace kalvane {
namespace {

constexpr std::int16_t kWindCheckHere = 0;

}  // namespace

CompanySettings LoadCompanySettings(AppState& state) {
    const auto read = [&](std::string_view key) {
        return state.settings->Read(kSettingsApplication, kSectionMain, key, "");
    };
    const auto path = [&](std::string_view key, std::string_view store) {
        return state.settings->Read(kSettingsPathsApplication, kSectionPaths, key,
                                    (state.folder / store).string());
    };
    ReadOutputSettings(state, kWindCheckHere);
    return {read("DW"),
            read("TEL"),
            read("ADDRESS"),
            state.outputFileType != 0,
            state.windCheckOption != 0,
            path("CLMDBPATH", kMainStoreName),
            path("CKMDBPATH", kStockStoreName)};
}

void SaveCompanySettings(AppState& state, const CompanySettings& settings) {
    const auto save = [&](std::string_view key, std::string_view text) {
        state.settings->Save(kSettingsApplication, kSectionMain, key, text);
    };
    save("DW", settings.company);
    save("TEL", settings.telephone);
    save("ADDRESS", settings.address);
    state.settings->Save(kSettingsPathsApplication, kSectionPaths, "CLMDBPATH", settings.mainStore);
    state.settings->Save(kSettingsPathsApplication, kSectionPaths, "CKMDBPATH", settings.stockStore);
    save("OutPutFileType", settings.textOutput ? "1" : "0");
    save("FYOPTION", settings.shortWindCheck ? "1" : "0");
    ReadOutputSettings(state, kWindCheckHere);
}

}  // namespace kalvane
