#pragma once

#include <cstdint>
#include <memory>

#include "app/app_state.h"
#include "platform/notice.h"

namespace kalvane {

/// Reads the output file type and the wind check's model. `windCheckDefault` holds when the model was never
/// saved: it differs between the start of the program (1) and the settings screen (0). A stored text that is
/// no 16-bit number counts as never saved. Needs `state.settings`.
void ReadOutputSettings(AppState& state, std::int16_t windCheckDefault);

/// Reads the optimiser's options. A stored number that does not fit leaves the defaults and is told.
void ReadOptimiserOptions(AppState& state, Notice& notice);

/// Tells the operator when nothing can be saved in the start-up folder.
void TellReadOnlyFolder(const AppState& state, Notice& notice);

// Opening a store brings it to the present layout, checks it after an unclean end, and keeps the copy of the
// day when the folder can be written to. A damaged or a missing one is told, and its newest dated copy may
// take its place.

/// Opens the user store for the screen that asks; null after a failure, which is told.
std::unique_ptr<Connection> OpenUserStore(const AppState& state, Notice& notice);

/// Open the shared stores of the start-up folder. A failure is told, and the program runs on without the
/// store: AppState::Main and Stock then throw. With the main store comes the template of the backups, and the
/// way back from a restore that was cut off.
void OpenMainStore(AppState& state, Notice& notice);
void OpenStockStore(AppState& state, Notice& notice);

}  // namespace kalvane
