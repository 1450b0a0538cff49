#include "optimise/plan_writer.h"

#include "numeric/error.h"

namespace kalvane {

RunEnd PlanWriter::Write(const std::function<void()>& work) {
    RunEnd end = RunEnd::Finished;
    written_.clear();
    scope_.emplace(connection_);
    try {
        connection_.Execute("Delete from 优化结果");
        work();
    } catch (const RunCancelled&) {
        end = RunEnd::Cancelled;
    } catch (...) {
        try {
            Finish();
        } catch (const StoreError&) {
            // The failure that ended the work says enough.
        }
        throw;
    }
    Finish();
    return end;
}

void PlanWriter::Add(const PlanRow& row) {
    try {
        InsertPlanRow(connection_, row);
    } catch (const StoreError&) {
        if (scope_->IsUndone()) {
            scope_.reset();
            Restore();
            scope_.emplace(connection_);
        }
        throw;
    }
    written_.push_back(row);
}

void PlanWriter::Finish() {
    try {
        scope_->Finish();
        scope_.reset();
    } catch (const StoreError&) {
        scope_.reset();
        Restore();
        throw;
    }
}

/// Brings the rows back as one command or, if that does not go through, each for itself until the disk takes
/// no more. The failure itself is already on its way to the operator.
void PlanWriter::Restore() {
    try {
        InCommand(connection_, [this] { Rewrite(); });
        return;
    } catch (const StoreError&) {
    }
    try {
        Rewrite();
    } catch (const StoreError&) {
    }
}

void PlanWriter::Rewrite() {
    connection_.Execute("Delete from 优化结果");
    for (const PlanRow& row : written_) InsertPlanRow(connection_, row);
}

}  // namespace kalvane
