#pragma once

#include <span>
#include <string>
#include <vector>

#include "output/tally_groups.h"
#include "page/report.h"
#include "page/table_file.h"
#include "project/project_windows.h"
#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

// What stands beside the tally for those who have to rely on it: rows whose price is not their own, and the
// amounts to the cent where the tally's own have too few digits for that.

/// A row of OutTJ, looked at again.
struct CheckedRow {
    int number = 0;             ///< BN
    TallyGroup group;           ///< what it sums
    bool isInCatalogue = true;  ///< else its name and its price are those of the row before
    std::string amount;         ///< 金额 as the tally has it
    double exact = 0;           ///< worked out in 64 bits, of a row in the catalogue
    bool losesCents = false;    ///< the amount differs from the exact one in cents
};

/// The rows of the tally that was just built with these classes, in their order, without the closing one.
/// Throws StoreError.
std::vector<CheckedRow> CheckTally(Connection& connection, const ClassChoice& classes, TallyView view);

/// Exact amount of all rows that have their own price, to the cent.
double ExactTotal(std::span<const CheckedRow> rows);

/// A closing note on the rows without a price of their own: each with the windows and formula rows that it
/// comes from, and the exact total without them. Empty when every row has its price. Throws StoreError.
std::vector<std::string> PriceNote(Connection& connection, std::span<const CheckedRow> rows, TallyView view,
                                   std::span<const WindowEntry> windows);

/// Marks the rows without a price of their own in a report of the tally, in a column behind the others, and
/// adds the note to its end. A report without such rows stays as it is.
void MarkPrices(Report& report, std::span<const CheckedRow> rows, const std::vector<std::string>& note);

/// Material at its exact amounts and the fees of a square metre in slots 0 to 3, each to the cent, of the
/// windows' sizes in whole millimetres.
double ExactOrderTotal(std::span<const CheckedRow> rows, std::span<const WindowEntry> windows,
                       const FieldSlots& slots);

/// A sheet with the exact amounts beside those of the tally, and the signs; nothing to write when no row
/// loses cents or lacks its price.
bool NeedsCheckSheet(std::span<const CheckedRow> rows);
FileTable CheckSheet(std::span<const CheckedRow> rows);

}  // namespace kalvane
