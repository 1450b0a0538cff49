#pragma once

class QMdiArea;
class QString;

namespace kalvane {

/// The main screen's area for child screens; null while there is no main screen (tests of one screen).
QMdiArea* MainFrame();
void SetMainFrame(QMdiArea* area);

/// Brings the open modeless screen of that name to the front; false when none is open. The work screens
/// exist once: a second opening shows the first.
bool ActivateScreen(const QString& name);

}  // namespace kalvane
