#pragma once

#include <string>

namespace CLI {
class App;
}

namespace kalvane {

/// The command "check" of kalvane-batch: what the formulas of the window types in a folder refer to and is
/// not there.
class CheckCommand {
  public:
    /// Adds it to `application`, which must not outlive this.
    explicit CheckCommand(CLI::App& application);
    CheckCommand(const CheckCommand&) = delete;
    CheckCommand& operator=(const CheckCommand&) = delete;

  private:
    /// Prints window type, table, row and what is wrong, a line each.
    void Run() const;

    std::string folder_ = ".";
};

}  // namespace kalvane
