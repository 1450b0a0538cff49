#include "optimise/plan_writer.h"

#include "platform/error.h"
#include "store/command_scope.h"

namespace kalvane {

RunEnd PlanWriter::Write(const std::function<void()>& work) {
    RunEnd end = RunEnd::Finished;
    bool workEnded = false;
    try {
        InCommand(connection_, [&] {
            connection_.Execute("Delete from 优化结果");
            try {
                work();
            } catch (const RunCancelled&) {
                end = RunEnd::Cancelled;
            }
            workEnded = true;
        });
    } catch (const StoreError&) {
        Restore();
        // An optimiser that goes on after a failed row has told the operator of it.
        if (workEnded && storeFailed_) return end;
        throw;
    }
    if (storeFailed_) Restore();
    return end;
}

void PlanWriter::Add(const PlanRow& row) {
    try {
        InsertPlanRow(connection_, row);
    } catch (const StoreError&) {
        storeFailed_ = true;
        throw;
    }
    written_.push_back(row);
}

void PlanWriter::Rewrite() {
    connection_.Execute("Delete from 优化结果");
    for (const PlanRow& row : written_) InsertPlanRow(connection_, row);
}

/// A full disk undoes the whole command, the rows before the failure too. They are written once more, as one
/// command or, if that does not go through, each for itself until the disk takes no more. The failure itself
/// is already on its way to the operator.
void PlanWriter::Restore() {
    try {
        InCommand(connection_, [&] { Rewrite(); });
        return;
    } catch (const StoreError&) {
    }
    try {
        Rewrite();
    } catch (const StoreError&) {
    }
}

}  // namespace kalvane
