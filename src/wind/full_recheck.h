#pragma once

#include "wind/full_check.h"
#include "wind/full_form.h"
#include "wind/recheck.h"

namespace kalvane {

/// The checks of the full report once more: coefficients by the glass's real ratio, the load in N/mm², the
/// strengths that the report names. The frame keeps the report's section values. Never fails where the report
/// succeeded. A negative load (suction) counts by its size.
Recheck RecheckFull(const FullTexts& texts, const FullLoad& load, const FullNumbers& numbers);

}  // namespace kalvane
