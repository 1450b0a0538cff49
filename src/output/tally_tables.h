#pragma once

#include <optional>

#include "output/tally_groups.h"
#include "page/table_file.h"
#include "session/tally_state.h"
#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

/// The views that are sent to a file, by the commands that send them.
enum class OutputView {
    CmdOut1,    ///< quantities of the summary
    cmdOut2,    ///< prices of the summary
    cmdOut3,    ///< quantities of the detail
    cmdOutTJB,  ///< areas
    cmdOutZJB   ///< settlement
};

/// The view of OutTJ that an output shows; nothing for one of OutJS.
std::optional<TallyView> TallyViewOf(OutputView view);

/// Rebuilds OutTJ from the last gathering for a view of it, and leaves OutJS as it is. Throws as the builders
/// of material_summary.h do.
void RebuildForOutput(Connection& connection, OutputView view, const ClassChoice& classes, FieldSlots& slots,
                      TallyState& totals);

/// The table of a view as it stands in the store; nothing when it has no rows. A text file of it has its tabs
/// behind each cell. Throws StoreError.
std::optional<FileTable> LoadOutput(Connection& connection, OutputView view);

}  // namespace kalvane
