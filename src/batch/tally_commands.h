#pragma once

#include <string>

#include "output/tally_groups.h"
#include "output/tally_tables.h"
#include "project/project_windows.h"

namespace CLI {
class App;
}

namespace kalvane {

/// The commands "tally", "settle" and "output" of kalvane-batch: material and settlement of a project.
class TallyCommands {
  public:
    /// Adds them to `application`, which must not outlive this.
    explicit TallyCommands(CLI::App& application);
    TallyCommands(const TallyCommands&) = delete;
    TallyCommands& operator=(const TallyCommands&) = delete;

  private:
    CLI::App* Add(CLI::App& application, const char* name, const char* description);
    void Tally() const;
    void Settle() const;
    void Output() const;

    ClassChoice Classes() const;
    std::vector<WindowEntry> Windows(Connection& connection) const;
    void Gather(Connection& connection) const;
    /// The closing note on rows without a price of their own.
    std::vector<std::string> Note(Connection& connection, TallyView view) const;
    void FillSettlementOf(Connection& connection) const;
    void PrintRaw(Connection& connection) const;
    void PrintLabels(Connection& connection) const;
    void PrintFees(Connection& connection) const;

    std::string folder_ = ".";
    std::string project_;
    std::string windows_;
    std::string view_;
    std::string classes_ = "1111";
    std::string fees_;
    std::string prices_;
    std::string to_;
};

}  // namespace kalvane
