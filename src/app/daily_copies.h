#pragma once

#include "platform/notice.h"
#include "session/app_state.h"

namespace kalvane {

/// Keeps today's copy of each store of the start-up folder that has none yet, each after a check of what is
/// copied. It reads every page of the stores, so the program calls it when the operator waits for nothing. A
/// failure is reported; after one that shows damage the stores are checked at the next start. Nothing is done
/// in a folder that cannot be written to.
void KeepDailyCopies(AppState& state, Notice& notice);

}  // namespace kalvane
