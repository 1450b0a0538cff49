#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "optimise/demand_file.h"
#include "optimise/row_complaints.h"
#include "session/optimise_settings.h"

namespace kalvane {

/// What a pasted table gave: its good rows, and what is wrong with each of the others.
struct PastedDemand {
    std::vector<ManualRow> rows;
    RowComplaints complaints;
};

/// Reads a table copied from a spreadsheet: a length in mm and its pieces per line, divided by a tab or, in
/// a line without one, by a comma. A field may be in double quotes. Empty lines are skipped, and so
/// is a first line that has a number in neither column: the headings. A length must be above 0 and pass
/// CheckManualRow; pieces are a whole number from 1 to 32767.
PastedDemand ParsePastedDemand(std::string_view text, const OptimiseSettings& settings);

}  // namespace kalvane
