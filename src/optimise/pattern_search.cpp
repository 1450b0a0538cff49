#include "optimise/pattern_search.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/cstack_i.h"
#include "optimise/stop_table.h"

namespace kalvane {
namespace {

constexpr int kMost16 = std::numeric_limits<std::int16_t>::max();

/// The pool's pieces, ascending, without those that cannot matter: of one length a bar takes no more than
/// fit and no more than the stack holds. One more is kept, since it closes a branch.
std::vector<std::int16_t> UsefulPieces(const CTable& pool, int stock) {
    std::vector<std::int16_t> values;
    int repeats = 0;
    for (int position = 1; position <= pool.GetCount(); ++position) {
        const std::int16_t value = pool.GetItemValue(static_cast<std::int16_t>(position));
        repeats = !values.empty() && values.back() == value ? repeats + 1 : 0;
        const int most = value == 0 ? kMostRecords : std::min<int>(kMostRecords, stock / value + 1);
        if (repeats < most) values.push_back(value);
    }
    return values;
}

float FillRatio(int sum, int stock) {
    return static_cast<float>(static_cast<double>(sum) / stock);
}

/// Lowest sum that ends the search; stock + 1 when none does.
int SumReaching(float ratio, int stock) {
    int sum = 0;
    while (sum <= stock && FillRatio(sum, stock) < ratio) ++sum;
    return sum;
}

}  // namespace

PatternSearch::PatternSearch(Notice& notice, std::function<void()> tick, std::int16_t records)
    : notice_(notice), ticker_(std::move(tick)), records_(records) {}

PatternSearch::Result PatternSearch::FindBestPattern(std::int16_t stock, const CTable& pool, float ratio) {
    found_.Clear();
    if (pool.GetMaxValue() > stock) return Report(pool.GetMaxValue(), "大于根长度!");
    if (pool.GetMinValue() < 0) return Report(pool.GetMinValue(), "为负值!");
    const std::int16_t total = pool.GetTotalValue(stock);
    if (total < stock) {
        ratio_ = FillRatio(total, stock);
        rest_ = static_cast<float>(stock - total);
        return Result::WholePoolFits;
    }
    Search(stock, pool, ratio);
    return Result::Pattern;
}

PatternSearch::Result PatternSearch::Report(std::int16_t value, const char* what) {
    notice_.Show("在数据检查时发现值:" + std::to_string(value) + what, "提示", NoticeIcon::Warning);
    return Result::BadData;
}

void PatternSearch::Search(std::int16_t stock, const CTable& pool, float ratio) {
    // A sample of no piece, from negative control nodes, sends the walk's position beyond 16 bits.
    if (pool.GetCount() == 0) throw NumericError::Overflow();
    if (stock == 0) throw NumericError::DivisionByZero();

    const std::vector<std::int16_t> values = UsefulPieces(pool, stock);
    const int stop = SumReaching(ratio, stock);
    const int best = HighestSum(values, stock);
    if (best < stop && stock + values.back() > kMost16) {
        // Nothing ends the walk early, so that it reaches every overflow there is.
        StopTable overflows(values, stock, stock + 1, ticker_);
        if (overflows.FewestPieces(0, 0) < records_) throw NumericError::Overflow();
    }
    Descend(values, stock, std::min(best, stop));
}

/// Follows the walk to its first closed branch that reaches `goal`, or to the overflow before it.
void PatternSearch::Descend(const std::vector<std::int16_t>& values, std::int16_t stock, int goal) {
    StopTable stops(values, stock, goal, ticker_);
    CStackI stack(records_);
    int sum = 0;
    int room = records_ - 1;  // pieces that may still be taken
    stack.Push({0, 1});
    for (std::size_t position = 0; position < values.size(); ++position) {
        const int withPiece = Checked16(sum + values[position]);
        if (withPiece > stock) break;
        if (stops.FewestPieces(position + 1, withPiece) < room) {
            sum = withPiece;
            --room;
            stack.Push({static_cast<std::int16_t>(sum), static_cast<std::int16_t>(position + 1)});
        }
    }
    if (sum == 0) throw NumericError("材料长度为零，不能优化。");
    found_ = stack.SetToYHArray();
    rest_ = static_cast<float>(stock - sum);
}

/// Highest sum not above the bar that the pieces make, taking no more of them than the stack holds.
int PatternSearch::HighestSum(const std::vector<std::int16_t>& values, std::int16_t stock) {
    std::vector<std::uint8_t> fewest(static_cast<std::size_t>(stock) + 1, StopTable::kNever);
    std::vector<std::uint8_t> next = fewest;
    fewest[0] = 0;
    next[0] = 0;
    for (const std::int16_t value : values) {
        const std::uint8_t* before = fewest.data();
        std::uint8_t* after = next.data();
        for (int sum = value; sum <= stock; ++sum) {
            after[sum] = std::min(before[sum], static_cast<std::uint8_t>(before[sum - value] + 1));
        }
        std::copy_n(before, value, after);
        fewest.swap(next);
        ticker_.Add(fewest.size());
    }
    int sum = stock;
    while (fewest[static_cast<std::size_t>(sum)] >= records_) --sum;
    return sum;
}

}  // namespace kalvane
