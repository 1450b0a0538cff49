#pragma once

#include <QString>

namespace kalvane {

class SettingsStore;

/// Hands the screens the settings store that they remember in, and the folder in which a file dialog opens
/// the first time. The store must live as long as the screens; with null nothing is remembered.
void UseScreenMemory(SettingsStore* settings, const QString& startFolder);

/// What the screens remember between runs besides the operator's settings: geometry and last folders.
QString Remembered(const QString& key, const QString& fallback);
void Remember(const QString& key, const QString& text);

/// The folder that was remembered for a purpose while it is there (a drive may be unplugged), or else
/// `first`; an empty one stands for the start folder.
QString RememberedFolder(const QString& purpose, const QString& first = {});
void RememberFolder(const QString& purpose, const QString& folder);

}  // namespace kalvane
