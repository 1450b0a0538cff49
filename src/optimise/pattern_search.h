#pragma once

#include <cstdint>
#include <functional>

#include "optimise/ctable.h"
#include "optimise/ticker.h"
#include "optimise/yh_array.h"
#include "platform/notice.h"

namespace kalvane {

/// Finds the pattern that fills one bar best.
///
/// The pattern is the one that a walk through all choices of pieces finds: pieces in ascending order, a
/// piece tried before it is passed by, the first of equal sums kept, and an end at the first sum that
/// reaches the control ratio. Such a walk doubles with every piece. What it finds depends only on which
/// sums can still be reached from where, so the search works that out by dynamic programming over
/// (position, sum) and then walks straight to the pattern. Its time is at most pieces times millimetres.
class PatternSearch {
  public:
    enum class Result {
        BadData = -1,      ///< already reported to the operator
        Pattern = 0,       ///< see Found()
        WholePoolFits = 1  ///< the pool is shorter than the bar; nothing in Found()
    };

    /// `tick` is called now and then during a long search. `records` is the height of the walk's stack,
    /// which holds one record more than a bar can take pieces; only tests change it.
    PatternSearch(Notice& notice, std::function<void()> tick, std::int16_t records = kMostRecords);

    /// `stock` in mm; `ratio` is the control ratio. Throws NumericError when the walk would leave 16 bits
    /// (a bar above 16383 mm), on a stock of 0, and when no piece of the pool has a length.
    Result FindBestPattern(std::int16_t stock, const CTable& pool, float ratio);

    /// What the search left: the pattern, how full the bar is (only for WholePoolFits) and its rest, mm.
    YHArray& Found() { return found_; }
    float YHRatio() const { return ratio_; }
    float YHRest() const { return rest_; }

  private:
    Result Report(std::int16_t value, const char* what);
    void Search(std::int16_t stock, const CTable& pool, float ratio);
    void Descend(const std::vector<std::int16_t>& values, std::int16_t stock, int goal);
    int HighestSum(const std::vector<std::int16_t>& values, std::int16_t stock);

    Notice& notice_;
    Ticker ticker_;
    std::int16_t records_;
    YHArray found_;
    float ratio_ = 0;
    float rest_ = 0;
};

}  // namespace kalvane
