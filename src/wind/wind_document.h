#pragma once

#include <filesystem>
#include <string>

#include "page/page_target.h"
#include "page/report.h"
#include "wind/window_run.h"

namespace kalvane {

/// "附：复核" of one window: the checks once more, and the warnings.
Report RecheckAnnex(const WindowCheck& check);

/// The windows of a run with their verdicts, and those that have none. All have the same kind of report.
Report VerdictTable(const CheckRun& run);

/// Prints a run of at least one report: the table of verdicts when it is of several windows, then for each
/// its report and, unless it is to be left out, the annex on pages of its own.
void PaintCheckRun(PageTarget& page, const CheckRun& run, bool hasAnnex);

/// The same as one text, lines ended by CR LF.
std::string CheckRunText(const CheckRun& run, bool hasAnnex);

/// Writes that text in UTF-8 with a byte order mark, by which the editors of any desktop show it. Throws
/// FileError and leaves an older file as it was.
void SaveCheckRunText(const std::filesystem::path& file, const CheckRun& run, bool hasAnnex);

}  // namespace kalvane
