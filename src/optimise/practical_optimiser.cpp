#include "optimise/practical_optimiser.h"

#include <utility>

#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/ctable02.h"
#include "optimise/pattern_text.h"

namespace kalvane {
namespace {

CTable02 LoadLengths(const OptimiseSettings& settings, Cursor& demand, RunReporter& reporter) {
    CTable02 lengths;
    if (demand.RecordCount() == 0) return lengths;
    lengths.Create(Checked16(demand.RecordCount()));
    std::int16_t position = 0;
    int pieces = 0;
    for (demand.MoveFirst(); !demand.Eof(); demand.MoveNext()) {
        const std::int64_t length = RoundToInt32(demand.Field(0).Number());
        const std::int16_t count = RoundToInt16(demand.Field(1).Number());
        lengths.AddNew(Checked16(length + settings.PieceAllowance()), count, ++position);
        pieces += count;
    }
    reporter.ExpectPieces(pieces);
    return lengths;
}

/// The bar being filled.
class Bar {
  public:
    Bar(PlanWriter& plan, const OptimiseSettings& settings, const std::string& name, RunReporter& reporter)
        : plan_(plan), settings_(settings), name_(name), reporter_(reporter), rest_(settings.CLC) {}

    std::int16_t Rest() const { return rest_; }

    /// Takes pieces of one length, with the allowance in mm.
    void Add(std::int16_t value, std::int16_t pieces) {
        rest_ = Checked16(rest_ - Checked16(std::int64_t{value} * pieces));
        AppendPieces(pattern_, value, pieces, settings_);
        pieces_ += pieces;
    }

    /// Writes the bar's row and starts a new bar; an empty bar is left as it is.
    void Write() {
        if (pattern_.empty()) return;
        if (settings_.CLC == 0) throw NumericError::DivisionByZero();
        const double ratio = static_cast<double>(Checked16(settings_.CLC - rest_)) / settings_.CLC;
        plan_.Add({name_, FinishedPattern(pattern_), "1", ShortText(ratio), ShortText(std::int64_t{rest_})});
        pattern_.clear();
        rest_ = settings_.CLC;
        reporter_.Placed(std::exchange(pieces_, 0), 1);
    }

  private:
    PlanWriter& plan_;
    const OptimiseSettings& settings_;
    const std::string& name_;
    RunReporter& reporter_;
    std::int16_t rest_;
    std::string pattern_;
    int pieces_ = 0;
};

}  // namespace

void OptimisePractical(PlanWriter& plan, const OptimiseSettings& settings, Notice& notice,
                       const std::string& name, Cursor& demand, RunReporter& reporter) {
    CTable02 lengths = LoadLengths(settings, demand, reporter);
    Bar bar(plan, settings, name, reporter);
    while (lengths.Count() != 0) {
        const std::int16_t position = lengths.FindJustFor(bar.Rest(), settings.CLC, notice);
        if (position == CTable02::kBadData) break;
        if (position == CTable02::kNothingFits) {
            bar.Write();
            continue;
        }
        std::int16_t value = 0;
        std::int16_t count = 0;
        lengths.Retrive(value, count, position);
        if (value == 0) throw NumericError::DivisionByZero();
        const std::int16_t fit = FloorToInt16(static_cast<double>(bar.Rest()) / value);
        if (fit < count) {
            bar.Add(value, fit);
            lengths.Update(static_cast<std::int16_t>(count - fit), position);
        } else {
            bar.Add(value, count);
            lengths.Remove(position);
        }
    }
    bar.Write();
}

}  // namespace kalvane
