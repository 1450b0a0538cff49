#include "ui/screen_memory.h"

#include "app/app_state.h"
#include "platform/settings_store.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr std::string_view kApplication = "Kalvane";
}  // namespace

QString Remembered(const QString& key, const QString& fallback) {
    if (App().settings == nullptr) return fallback;
    return ToQt(App().settings->Read(kApplication, kSectionScreens, FromQt(key), FromQt(fallback)));
}

void Remember(const QString& key, const QString& text) {
    if (App().settings == nullptr || Remembered(key, {}) == text) return;
    App().settings->Save(kApplication, kSectionScreens, FromQt(key), FromQt(text));
}

}  // namespace kalvane
