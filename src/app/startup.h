#pragma once

#include <memory>

#include "platform/notice.h"
#include "session/app_state.h"

namespace kalvane {

/// Warns the operator when nothing can be saved in the start-up folder.
void WarnOfReadOnlyFolder(const AppState& state, Notice& notice);

// Opening a store migrates it to the present layout and checks it after an unclean end. A damaged or missing
// one is reported, and its newest dated copy that is sound may take its place.

/// Opens the user store for the screen that asks; null after a failure, which is reported.
std::unique_ptr<Connection> OpenUserStore(const AppState& state, Notice& notice);

/// Open the shared stores of the start-up folder. A failure is reported, and the program runs on
/// without the store: AppState::Main and Stock then throw. The main store brings the template of the backups
/// up to date as well, and offers to undo a restore that was cut off.
void OpenMainStore(AppState& state, Notice& notice);
void OpenStockStore(AppState& state, Notice& notice);
void OpenOwnStore(AppState& state, Notice& notice);

}  // namespace kalvane
