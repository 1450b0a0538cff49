#pragma once

#include <memory>

#include "platform/notice.h"
#include "session/app_state.h"

namespace kalvane {

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
