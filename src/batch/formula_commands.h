#pragma once

#include <string>

namespace CLI {
class App;
}

namespace kalvane {

/// "formulas": all window types with their formula rows to a spreadsheet, or from one into a series.
class FormulaCommands {
  public:
    explicit FormulaCommands(CLI::App& application);

  private:
    void Run() const;
    void Export() const;
    void Import() const;

    std::string folder_ = ".";
    std::string export_;
    std::string import_;
    std::string series_;
    bool isDryRun_ = false;
};

}  // namespace kalvane
