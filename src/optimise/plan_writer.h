#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "optimise/plan.h"
#include "optimise/run_progress.h"
#include "store/command_scope.h"

namespace kalvane {

/// Writes the plan of one run to 优化结果, as one command. A disk failure undoes a command whole, but the
/// rows that a run wrote before it are to stay: they are written again, as far as the disk takes them.
class PlanWriter {
  public:
    explicit PlanWriter(Connection& connection) : connection_(connection) {}

    /// Empties 优化结果 and does `work`, which adds the rows. The answer is Finished or, when `work` threw
    /// RunCancelled, Cancelled. Any other failure is passed on to the caller; the rows added before it stay.
    RunEnd Write(const std::function<void()>& work);

    /// Adds a row; to be called within Write. Throws StoreError, for one when the pattern has more than 100
    /// characters; the rows before stay, and more may be added.
    void Add(const PlanRow& row);

  private:
    void Finish();
    void Restore();
    void Rewrite();

    Connection& connection_;
    std::optional<CommandScope> scope_;  ///< open within Write
    std::vector<PlanRow> written_;
};

}  // namespace kalvane
