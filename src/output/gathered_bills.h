#pragma once

#include <functional>
#include <span>

#include "formula/bill_row.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// Works out the material of windows again as a gathering does, in its order, for what is shown beside the
/// tally. A failure, which the gathering has shown, ends a plain window, and all of them at a composite.
/// `sink` must not throw.
void ExpandGathered(Connection& connection, std::span<const WindowEntry> windows,
                    const std::function<void(const WindowEntry&, const BillRow&)>& sink);

}  // namespace kalvane
