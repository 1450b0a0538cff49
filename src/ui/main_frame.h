#pragma once

class QMdiArea;

namespace kalvane {

/// The main screen's area for child screens; null while there is no main screen (tests of one screen).
QMdiArea* MainFrame();
void SetMainFrame(QMdiArea* area);

}  // namespace kalvane
