#pragma once

#include "page/report.h"

class QWidget;

namespace kalvane {

/// Upright A4, or A5 on its long side.
enum class ReportPaper { A4, A5 };

/// Shows a report in the preview, from where it is printed or saved as PDF. True when it was.
bool PrintReport(QWidget* parent, const Report& report, ReportPaper paper = ReportPaper::A4);

}  // namespace kalvane
