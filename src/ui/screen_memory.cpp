#include "ui/screen_memory.h"

#include <QFileInfo>

#include "platform/settings_store.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr std::string_view kApplication = "Kalvane";

struct ScreenMemory {
    SettingsStore* settings = nullptr;
    QString startFolder;
};

ScreenMemory& Memory() {
    static ScreenMemory memory;
    return memory;
}

QString FolderKey(const QString& purpose) {
    return purpose + QStringLiteral(".folder");
}

}  // namespace

void UseScreenMemory(SettingsStore* settings, const QString& startFolder) {
    Memory() = {settings, startFolder};
}

QString Remembered(const QString& key, const QString& fallback) {
    const SettingsStore* settings = Memory().settings;
    if (settings == nullptr) return fallback;
    return ToQt(settings->Read(kApplication, kSectionScreens, FromQt(key), FromQt(fallback)));
}

void Remember(const QString& key, const QString& text) {
    SettingsStore* settings = Memory().settings;
    if (settings == nullptr || Remembered(key, {}) == text) return;
    settings->Save(kApplication, kSectionScreens, FromQt(key), FromQt(text));
}

QString RememberedFolder(const QString& purpose, const QString& first) {
    const QString folder = Remembered(FolderKey(purpose), {});
    if (QFileInfo(folder).isDir()) return folder;
    return first.isEmpty() ? Memory().startFolder : first;
}

void RememberFolder(const QString& purpose, const QString& folder) {
    Remember(FolderKey(purpose), folder);
}

}  // namespace kalvane
