#pragma once

#include <span>

#include "project/project_windows.h"

class QWidget;

namespace kalvane {

/// frmSZZJ: the four fees of a square metre, to the shared slots 0 to 3; each is "0" when it is cancelled.
void AskFees(QWidget* parent);

/// frmJSJE: the prices of a square metre of doors and of windows, to the shared slots 0 and 1. It shows which
/// of the windows is paid as what. False when it was cancelled.
bool AskSettlementPrices(QWidget* parent, std::span<const WindowEntry> windows);

}  // namespace kalvane
