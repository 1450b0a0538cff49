#pragma once

#include <string>

#include "output/sheet_document.h"

namespace CLI {
class App;
}

namespace kalvane {

/// The commands "sheet" and "short" of kalvane-batch: the component sheets of a project and its short table.
class SheetCommands {
  public:
    /// Adds them to `application`, which must not outlive this.
    explicit SheetCommands(CLI::App& application);
    SheetCommands(const SheetCommands&) = delete;
    SheetCommands& operator=(const SheetCommands&) = delete;

  private:
    CLI::App* Add(CLI::App& application, const char* name, const char* description);
    void Sheet() const;
    void Short() const;

    std::string folder_ = ".";
    std::string project_;
    std::string windows_;
    bool table_ = false;
    bool print_ = false;
};

}  // namespace kalvane
