#pragma once

#include <cstdint>

#include "session/app_state.h"

namespace kalvane {

/// Reads the output file type and the wind check's model. `windCheckDefault` holds when the model was never
/// saved: it differs between the start of the program (1) and the settings screen (0). A stored text that is
/// no 16-bit number counts as never saved. Needs `state.settings`.
void ReadOutputSettings(AppState& state, std::int16_t windCheckDefault);

}  // namespace kalvane
