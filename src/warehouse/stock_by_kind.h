#pragma once

#include "page/report.h"
#include "store/connection.h"

namespace kalvane {

/// The stock list by kind of material, in the order of MaterialKinds() and then any others, the materials of
/// a kind by name and 规格, with totals of each kind: one for each unit, since pieces and metres do not add
/// up. A material below its minimum has the minimum beside it. `own` may be null: no minimum is known then.
/// Throws StoreError.
Report StockByKindReport(Connection& stock, Connection* own);

}  // namespace kalvane
