#include <algorithm>
#include <random>

#include "optimise/ctable.h"

namespace kalvane::test {
namespace {

/// Ascending tables of few lengths, against counting by hand. With 11 to 13 pieces the halving can end one
/// below the piece it looks for.
TEST(CTableTest, LocatesTheFirstOfEveryRunAndDeletesExactlyThePatternsPieces) {
    std::mt19937 random(11);
    for (int round = 0; round < 4000; ++round) {
        std::vector<std::int16_t> values(random() % 24 + 1);
        for (std::int16_t& value : values) value = static_cast<std::int16_t>(random() % 12 + 1);
        std::sort(values.begin(), values.end());
        CTable table;
        for (const std::int16_t value : values) table.AddItem(value);
        // Two deletions, since the second starts from a rewritten position array.
        for (int pass = 0; pass < 2 && !values.empty(); ++pass) {
            YHArray pattern;
            std::vector<std::int16_t> left;
            for (const std::int16_t value : values) {
                const auto first = std::lower_bound(values.begin(), values.end(), value) - values.begin();
                ASSERT_EQ(table.Locate(value), first + 1) << testing::PrintToString(values);
                ASSERT_EQ(table.GetValueCount(value), std::count(values.begin(), values.end(), value));
                random() % 3 == 0 ? pattern.AddPiece(value) : left.push_back(value);
            }
            table.DeleteList(pattern);
            ASSERT_EQ(table.GetCount(), left.size());
            for (std::size_t i = 0; i < left.size(); ++i) {
                ASSERT_EQ(table.GetItemValue(static_cast<std::int16_t>(i + 1)), left[i]);
            }
            values = left;
        }
        ASSERT_EQ(table.GetValueCount(21), 0);
    }
}

}  // namespace
}  // namespace kalvane::test
