#pragma once

#include "page/report.h"

class QWidget;

namespace kalvane {

/// Shows a report on upright A4 sheets in the preview, from where it is printed or saved as PDF. True when
/// it was.
bool PrintReport(QWidget* parent, const Report& report);

}  // namespace kalvane
