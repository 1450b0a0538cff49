#pragma once

#include "wind/form_texts.h"
#include "wind/recheck.h"
#include "wind/sliding_check.h"

namespace kalvane {

/// The checks of a sliding window once more. The steel is worked out twice: by the formula of the report,
/// with N and mm throughout, and under the loads that the panes really hand on, on the beam's real span.
/// Never fails where the report succeeded.
Recheck RecheckSliding(const FormTexts& texts, const SlidingNumbers& numbers);

}  // namespace kalvane
