#pragma once

#include <QString>

class QWidget;

namespace kalvane {

class SettingsStore;

/// Shows frmFM01, the texts of the cover, and saves them when it is confirmed. The date is that of today and
/// is not kept.
void EditCover(SettingsStore& settings, QWidget* parent);

/// Today's date as the cover shows it.
QString Today();

}  // namespace kalvane
