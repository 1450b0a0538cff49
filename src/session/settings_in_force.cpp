#include "session/settings_in_force.h"

#include <string>
#include <string_view>

#include "numeric/error.h"
#include "numeric/number.h"
#include "platform/settings_store.h"

namespace kalvane {
namespace {

std::int16_t ReadInt16(const SettingsStore& settings, std::string_view key, std::int16_t fallback) {
    const std::string text = settings.Read(kSettingsApplication, kSectionMain, key, "");
    try {
        return text.empty() ? fallback : RoundToInt16(ParseNumber(text));
    } catch (const NumericError&) {
        return fallback;
    }
}

}  // namespace

void ReadOutputSettings(AppState& state, std::int16_t windCheckDefault) {
    state.outputFileType = ReadInt16(*state.settings, "OutPutFileType", 0);
    state.windCheckOption = ReadInt16(*state.settings, "FYOPTION", windCheckDefault);
}

}  // namespace kalvane
