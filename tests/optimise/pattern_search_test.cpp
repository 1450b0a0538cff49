#include "optimise/pattern_search.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <random>

#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/cstack_i.h"
#include "support/recording_notice.h"

namespace kalvane::test {
namespace {

using Result = PatternSearch::Result;

/// The pattern as "820*3+1520*1+ rest 12", or the error.
using Outcome = std::optional<std::string>;

std::string TextOf(const YHArray& pattern) {
    std::string text;
    for (const YHRecord& record : pattern) {
        text += std::to_string(record.length) + "*" + std::to_string(record.count) + "+";
    }
    return text;
}

CTable TableOf(const std::vector<std::int16_t>& values) {
    CTable table;
    for (const std::int16_t value : values) table.AddItem(value);
    return table;
}

/// The walk through all choices, step by step. Nothing when it finds no pattern at all.
Outcome WalkAll(std::int16_t stock, const CTable& pool, float ratio, std::int16_t records) {
    CStackI stack(records);
    Outcome found;
    int best = 0;
    try {
        pool.GetTotalValue(stock);
        stack.Push({0, 1});
        stack.Push({pool.GetItemValue(1), 1});
        while (!stack.IsEmpty()) {
            CStackI::Record top = stack.Top();
            if (top.position == pool.GetCount()) {
                if (top.sum > best) {
                    best = top.sum;
                    found = TextOf(stack.SetToYHArray()) + " rest " + std::to_string(stock - top.sum);
                }
                if (!(static_cast<float>(static_cast<double>(top.sum) / stock) < ratio)) return found;
                stack.Pop();
                continue;
            }
            stack.Pop();
            top.position = Checked16(top.position + 1);
            stack.Push(top);
            const std::int16_t sum = Checked16(top.sum + pool.GetItemValue(top.position));
            if (sum <= stock) {
                stack.Push({sum, top.position});
            } else {
                stack.Pop();
                stack.Push({top.sum, pool.GetCount()});
            }
        }
    } catch (const NumericError& error) {
        return error.what();
    }
    return found;
}

Outcome Search(std::int16_t stock, const CTable& pool, float ratio, std::int16_t records) {
    RecordingNotice notice;
    PatternSearch search(notice, nullptr, records);
    try {
        EXPECT_EQ(search.FindBestPattern(stock, pool, ratio), Result::Pattern);
        return TextOf(search.Found()) + " rest " + ShortText(search.YHRest());
    } catch (const NumericError& error) {
        if (std::string(error.what()) != NumericError::Overflow().what()) return std::nullopt;
        return error.what();
    }
}

/// Kinds of demand, each of which brings out another side of the walk.
struct Family {
    const char* name;
    int lowStock, highStock;
    int lowValue;  // shortest piece
    int parts;     // longest piece is the stock divided by this
    int lengths;   // distinct lengths drawn from
    int pieces;    // most pieces
    int records;   // room of the stack
    bool mayOverflow;
};

TEST(PatternSearchTest, FindsWhatTheWalkThroughAllChoicesFinds) {
    const Family families[] = {
        {"small bars", 20, 60, 1, 1, 20, 14, 100, false},
        {"few lengths", 50, 400, 5, 2, 3, 15, 100, false},
        {"low stack", 40, 90, 1, 3, 6, 14, 5, false},
        {"low stack, zero lengths", 20, 60, 0, 4, 3, 14, 6, false},
        {"one copy closes a branch", 20, 60, 6, 1, 4, 15, 100, false},
        {"long bars", 16384, 32767, 1500, 1, 6, 13, 100, true},
        {"long bars, low stack", 16384, 32767, 800, 3, 5, 14, 4, true},
        {"long bars, many lengths", 18000, 30000, 1500, 2, 9, 12, 100, true},
    };
    const float ratios[] = {1, 0.95F, 0.9F, 0.5F, 0, -1, 1.5F};
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    const auto draw = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, std::max(low, high))(random);
    };
    for (const Family& family : families) {
        int overflows = 0;
        int patterns = 0;
        for (int round = 0; round < 1000; ++round) {
            const auto stock = static_cast<std::int16_t>(draw(family.lowStock, family.highStock));
            std::vector<std::int16_t> lengths;
            for (int i = 0; i < family.lengths; ++i) {
                lengths.push_back(static_cast<std::int16_t>(draw(family.lowValue, stock / family.parts)));
            }
            std::vector<std::int16_t> values;
            for (int i = draw(2, family.pieces); i > 0; --i) {
                values.push_back(lengths[static_cast<std::size_t>(draw(0, family.lengths - 1))]);
            }
            std::sort(values.begin(), values.end());
            if (std::accumulate(values.begin(), values.end(), 0) < stock) continue;
            const CTable pool = TableOf(values);
            const float ratio = ratios[draw(0, 6)];
            const auto records = static_cast<std::int16_t>(family.records);
            const auto expected = WalkAll(stock, pool, ratio, records);
            const auto actual = Search(stock, pool, ratio, records);
            ASSERT_EQ(actual, expected) << family.name << ", seed " << seed << ", stock " << stock
                                        << ", ratio " << ratio << ", " << testing::PrintToString(values);
            (expected == NumericError::Overflow().what() ? overflows : patterns) += 1;
        }
        EXPECT_GT(patterns, 10) << family.name << ", seed " << seed;
        EXPECT_EQ(overflows > 10, family.mayOverflow) << family.name << ", seed " << seed;
    }
}

TEST(PatternSearchTest, ReportsBadDataAndHoldsNinetyNinePieces) {
    RecordingNotice notice;
    PatternSearch search(notice, nullptr);
    const auto find = [&search](std::int16_t stock, const std::vector<std::int16_t>& values, float ratio) {
        return search.FindBestPattern(stock, TableOf(values), ratio);
    };
    EXPECT_EQ(find(1000, {500, 1001}, 1), Result::BadData);
    EXPECT_EQ(find(1000, {-3, 500}, 1), Result::BadData);
    EXPECT_EQ(notice.shown, (std::vector<std::string>{"提示|在数据检查时发现值:1001大于根长度!",
                                                      "提示|在数据检查时发现值:-3为负值!"}));
    EXPECT_EQ(notice.icons.front(), NoticeIcon::Warning);
    EXPECT_EQ(find(1000, {200, 300}, 1), Result::WholePoolFits);
    EXPECT_EQ(search.YHRatio(), 0.5F);
    EXPECT_EQ(search.YHRest(), 500);
    EXPECT_THROW(find(0, {0, 0}, 1), NumericError);
    EXPECT_THROW(find(0, {}, 1), NumericError);
    // A hundred pieces of no length fill the stack and stop the walk at once, again and again.
    std::vector<std::int16_t> pieces(100, 0);
    pieces.push_back(1000);
    EXPECT_THROW(find(1000, pieces, 0), NumericError);
    EXPECT_EQ(find(1000, pieces, 1), Result::Pattern);
    EXPECT_EQ(TextOf(search.Found()), "1000*1+");
    // 120 pieces of 10 and one of 15 on a bar of 1010: 101 tens would fill it, but the stack has room for
    // 99 pieces. The best is 98 tens and the 15: 995.
    pieces.assign(120, 10);
    pieces.push_back(15);
    EXPECT_EQ(find(1010, pieces, 1), Result::Pattern);
    EXPECT_EQ(TextOf(search.Found()), "10*98+15*1+");
    EXPECT_EQ(search.YHRest(), 15);
}

}  // namespace
}  // namespace kalvane::test
