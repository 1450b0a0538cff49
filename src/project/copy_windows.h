#pragma once

#include <span>
#include <string>
#include <string_view>

#include "numeric/error.h"
#include "project/project_list.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// A copy that the store refused.
class CopyRefusal : public StoreError {
  public:
    CopyRefusal(std::size_t copied, const std::string& text) : StoreError(text), copied_(copied) {}

    /// Windows that were copied before.
    std::size_t Copied() const { return copied_; }

  private:
    std::size_t copied_;
};

/// Copies windows with all their labels, a composite with its members, to the project of that number, each
/// under the next number; one that is named twice is copied twice. A Null position or count stays Null.
/// Throws CopyRefusal, which names the window, when the store refuses a statement: what was copied before
/// stays. One command.
void CopyWindows(Connection& connection, std::span<const WindowEntry> windows,
                 std::string_view targetProject);

/// Adds a project of that name with place, client, contract number and windows of another one, and returns
/// it; a contract is not copied. Throws StoreError. One command.
Project DuplicateProject(Connection& connection, const Project& project, const std::string& name);

}  // namespace kalvane
