#pragma once

#include <string>

#include "optimise/ctable.h"
#include "optimise/pattern_search.h"
#include "optimise/plan_writer.h"
#include "optimise/run_progress.h"
#include "platform/notice.h"
#include "session/optimise_settings.h"
#include "store/cursor.h"

namespace kalvane {

/// The second scheme: for each bar the pattern that leaves the least waste among the remaining pieces, cut
/// as many times as the demand allows. A row of 优化结果 covers all bars of one pattern.
class LinearOptimiser {
  public:
    /// `reporter` is called for every row and about every millisecond of a long search.
    LinearOptimiser(PlanWriter& plan, const OptimiseSettings& settings, Notice& notice,
                    RunReporter& reporter);

    /// `name` is the material's 规格; `stock` the bar in mm; `demand` has a length (mm) and its pieces per
    /// row, shortest first, and a length may come more than once. More than NODES pieces are searched by an
    /// even sample of NODES.
    ///
    /// Any failure ends this material only: it is shown under "出错", and the rows already written stay.
    void OptimiseLinear(const std::string& name, std::int16_t stock, Cursor& demand);

  private:
    void LoadPieces(Cursor& demand);
    void Run(const std::string& name, std::int16_t stock);
    void SamplePieces();
    void DrainTable(const std::string& name, std::int16_t stock, const CTable& pool, CTable& pieces);
    void EmitPattern(const std::string& name, std::int16_t stock, const CTable& pool, CTable& pieces);
    void EmitAll(const std::string& name, CTable& pieces);
    void EmitRepeated(const std::string& name, std::int16_t stock, CTable& pieces);
    void WriteRow(const std::string& name, std::int16_t repetition, float ratio);

    PlanWriter& plan_;
    const OptimiseSettings& settings_;
    Notice& notice_;
    RunReporter& reporter_;
    PatternSearch search_;
    CTable pieceTable_;  // all remaining pieces of the material
    CTable poolTable_;   // a sample of them
};

}  // namespace kalvane
