#include "session/optimise_settings.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "platform/settings_store.h"

namespace kalvane {
namespace {

std::string ReadKey(const SettingsStore& store, std::string_view key, std::string_view fallback) {
    return store.Read(kSettingsApplication, kSectionOptimiser, key, fallback);
}

}  // namespace

std::int16_t OptimiseSettings::PieceAllowance() const {
    return Checked16(std::int64_t{LTC} + 2 * std::int64_t{CKK});
}

OptimiseSettings ReadOptimiseSettings(const SettingsStore& store) {
    OptimiseSettings settings;
    settings.CLC = FloorToInt16(ParseNumber(ReadKey(store, "CLC", "0")));
    settings.LTC = FloorToInt16(ParseNumber(ReadKey(store, "LTC", "0")));
    settings.CKK = FloorToInt16(ParseNumber(ReadKey(store, "CKK", "0")));
    settings.COUNT = FloorToInt32(ParseNumber(ReadKey(store, "COUNT", "0")));
    settings.YHBL = NarrowToFloat(Val(ReadKey(store, "YHBL", "1")));
    settings.SAVEPATH = ReadKey(store, "SAVEPATH", "");
    settings.NODES = RoundToInt16(ParseNumber(ReadKey(store, "NODES", "20")));
    return settings;
}

void WriteOptimiseSettings(SettingsStore& store, const OptimiseSettings& settings) {
    const auto save = [&store](std::string_view key, std::string_view text) {
        store.Save(kSettingsApplication, kSectionOptimiser, key, Trim(text));
    };
    save("CLC", ShortText(std::int64_t{settings.CLC}));
    save("LTC", ShortText(std::int64_t{settings.LTC}));
    save("CKK", ShortText(std::int64_t{settings.CKK}));
    save("COUNT", ShortText(std::int64_t{settings.COUNT}));
    save("YHBL", ShortText(settings.YHBL));
    save("SAVEPATH", settings.SAVEPATH);
    save("NODES", ShortText(std::int64_t{settings.NODES}));
}

}  // namespace kalvane
