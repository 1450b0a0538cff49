#pragma once

#include "page/page_target.h"
#include "page/report.h"

namespace kalvane {

/// Prints a report as one document. A row is kept on one page, unless it is higher than a whole one; then it
/// is divided between its lines.
void PaintReport(PageTarget& page, const Report& report);

}  // namespace kalvane
