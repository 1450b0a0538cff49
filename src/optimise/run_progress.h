#pragma once

#include <cstddef>
#include <functional>
#include <utility>

namespace kalvane {

/// Progress of a run.
struct RunStage {
    std::size_t material = 0;  ///< index of the material at hand
    int pieces = 0;            ///< pieces of this material
    int placed = 0;            ///< of these, the ones that have their bar
    int bars = 0;              ///< bars written in this run
};

/// Called when a material begins, after each row that is written, and about every millisecond of a
/// long search, so it must be quick. May be empty. Throws RunCancelled to end the run.
using RunProgress = std::function<void(const RunStage&)>;

/// The operator cancelled; the rows already written stay. No Error, so that no handler on the way takes
/// it for a failure.
struct RunCancelled {};

/// How a run ended. A failure has been reported.
enum class RunEnd { Finished, Cancelled, Failed };

/// Keeps the stage of one run and passes it on.
class RunReporter {
  public:
    explicit RunReporter(RunProgress progress) : progress_(std::move(progress)) {}

    void StartMaterial(std::size_t index) {
        stage_.material = index;
        stage_.pieces = 0;
        stage_.placed = 0;
        Tick();
    }
    void ExpectPieces(int pieces) { stage_.pieces = pieces; }
    void Placed(int pieces, int bars) {
        stage_.placed += pieces;
        stage_.bars += bars;
        Tick();
    }
    void Tick() const {
        if (progress_) progress_(stage_);
    }

  private:
    RunProgress progress_;
    RunStage stage_;
};

}  // namespace kalvane
