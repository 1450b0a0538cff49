#pragma once

#include <string>
#include <vector>

#include "page/page_target.h"
#include "page/report.h"
#include "wind/window_check.h"

namespace kalvane {

/// "附：复核" of one window: the checks once more, and the warnings.
Report RecheckAnnex(const WindowCheck& check);

/// The windows of one run with their verdicts; all have the same checks.
Report VerdictTable(const std::vector<WindowCheck>& checks);

/// Prints the windows of one run: with several a table of their verdicts, then for each its report and,
/// unless it is to be left out, the annex on pages of its own. All windows have the same kind of report.
void PaintWindowChecks(PageTarget& page, const std::vector<WindowCheck>& checks, bool hasAnnex);

/// The same as one text, lines ended by CR LF.
std::string WindowChecksText(const std::vector<WindowCheck>& checks, bool hasAnnex);

}  // namespace kalvane
