#pragma once

#include <span>

#include "project/project_list.h"
#include "project/project_windows.h"

class QWidget;

namespace kalvane {

// What a customer signs. Each comes up in the preview, from where it is printed or saved; what is read for it
// throws StoreError.

/// drGCHT01: the contract as it was saved.
void PrintContract(QWidget* parent, const Project& project);

/// 门窗表 of these windows, in their order.
void PrintWindowList(QWidget* parent, const Project& project, std::span<const WindowEntry> windows);

/// The contract, and the list of all windows of the project behind it, as one document.
void PrintContractAndWindows(QWidget* parent, const Project& project);

}  // namespace kalvane
