#pragma once

#include <QString>

namespace kalvane {

/// What the screens remember between runs besides the operator's settings: geometry and last folders.
/// With no settings store nothing is remembered.
QString Remembered(const QString& key, const QString& fallback);
void Remember(const QString& key, const QString& text);

}  // namespace kalvane
