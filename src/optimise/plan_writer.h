#pragma once

#include <functional>
#include <vector>

#include "optimise/plan.h"
#include "optimise/run_progress.h"
#include "store/connection.h"

namespace kalvane {

/// Writes the plan of one run to 优化结果.
class PlanWriter {
  public:
    explicit PlanWriter(Connection& connection) : connection_(connection) {}

    /// Empties 优化结果 and does `work`, which adds the rows, as one command. The answer is Finished or,
    /// when `work` threw RunCancelled, Cancelled. Any other failure goes on to the caller; whatever it was,
    /// the rows added before it stay, as far as the disk takes them.
    RunEnd Write(const std::function<void()>& work);

    /// Adds a row. Throws StoreError, for one when the pattern has more than 100 characters.
    void Add(const PlanRow& row);

  private:
    void Rewrite();
    void Restore();

    Connection& connection_;
    std::vector<PlanRow> written_;
    bool storeFailed_ = false;
};

}  // namespace kalvane
