#pragma once

class QApplication;

namespace kalvane {

/// Gives the application its name, style, Chinese fonts and texts, and its event filters. Needs no store
/// and no settings.
void PrepareApplication(QApplication& application);

}  // namespace kalvane
