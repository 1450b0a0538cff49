#include <algorithm>
#include <map>
#include <random>

#include "numeric/number.h"
#include "optimise/ctable.h"
#include "optimise/ctable02.h"
#include "platform/error.h"
#include "support/recording_notice.h"

namespace kalvane {
namespace {

CTable TableOf(const std::vector<std::int16_t>& values) {
    CTable table;
    for (const std::int16_t value : values) table.AddItem(value);
    return table;
}

std::vector<std::int16_t> ValuesOf(const CTable& table) {
    std::vector<std::int16_t> values;
    for (std::int16_t p = 1; p <= table.GetCount(); ++p) values.push_back(table.GetItemValue(p));
    return values;
}

TEST(CTableTest, ReadsEndsAndPositions) {
    CTable table;
    EXPECT_EQ(table.GetMinValue(), 0);
    EXPECT_EQ(table.GetMaxValue(), 0);
    EXPECT_EQ(table.GetTotalValue(10), 0);
    table = TableOf({820, 1520, 2020});
    EXPECT_EQ(table.GetMinValue(), 820);
    EXPECT_EQ(table.GetMaxValue(), 2020);
    EXPECT_EQ(table.GetItemValue(0), -1);
    EXPECT_EQ(table.GetItemValue(4), -1);
    EXPECT_EQ(table.GetTotalValue(2340), 2340);  // reached by the second piece
    EXPECT_EQ(table.GetTotalValue(6000), 4360);
    table.ClearAll();
    EXPECT_EQ(table.GetCount(), 0);
}

TEST(CTableTest, OverflowsInTheSumAndAtThe32768thPiece) {
    EXPECT_THROW(TableOf({16000, 17000}).GetTotalValue(32700), NumericError);
    EXPECT_EQ(TableOf({16000, 16767}).GetTotalValue(32767), 32767);
    CTable table;
    for (int i = 0; i < 32767; ++i) table.AddItem(static_cast<std::int16_t>(i));
    EXPECT_EQ(table.Locate(32766), 32767);
    EXPECT_EQ(table.GetValueCount(32766), 1);
    EXPECT_THROW(table.AddItem(1), NumericError);
}

/// Every ascending table of up to 13 pieces of few lengths, against counting by hand. With 11 to 13 pieces
/// the halving can end one below the piece it looks for.
TEST(CTableTest, LocatesTheFirstOfEveryRun) {
    std::mt19937 random(7);
    for (int round = 0; round < 4000; ++round) {
        const int count = static_cast<int>(random() % 13) + 1;
        std::multimap<std::int16_t, int> sorted;
        for (int i = 0; i < count; ++i) sorted.insert({static_cast<std::int16_t>(random() % 20 + 1), 0});
        std::vector<std::int16_t> values;
        for (const auto& entry : sorted) values.push_back(entry.first);
        const CTable table = TableOf(values);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto first = std::lower_bound(values.begin(), values.end(), values[i]) - values.begin();
            ASSERT_EQ(table.Locate(values[i]), first + 1) << testing::PrintToString(values);
            ASSERT_EQ(table.GetValueCount(values[i]), std::count(values.begin(), values.end(), values[i]));
        }
        ASSERT_EQ(table.GetValueCount(21), 0);
    }
}

TEST(CTableTest, DeletesExactlyThePatternsPieces) {
    std::mt19937 random(11);
    for (int round = 0; round < 4000; ++round) {
        std::vector<std::int16_t> values;
        for (std::size_t i = random() % 24 + 1; i > 0; --i) {
            values.push_back(static_cast<std::int16_t>(random() % 8 + 1));
        }
        std::sort(values.begin(), values.end());
        CTable table = TableOf(values);
        // Two deletions, since the second starts from a rewritten position array.
        for (int pass = 0; pass < 2 && !values.empty(); ++pass) {
            YHArray pattern;
            std::vector<std::int16_t> left;
            for (const std::int16_t value : values) {
                if (random() % 3 == 0) {
                    pattern.AddPiece(value);
                } else {
                    left.push_back(value);
                }
            }
            table.DeleteList(pattern);
            ASSERT_EQ(ValuesOf(table), left) << testing::PrintToString(values);
            values = left;
        }
    }
}

TEST(YHArrayTest, HasRoomForAHundredLengths) {
    YHArray pattern;
    for (std::int16_t length = 1; length <= 100; ++length) pattern.AddPiece(length);
    pattern.AddPiece(100);
    EXPECT_EQ(pattern[99].count, 2);
    EXPECT_THROW(pattern.AddPiece(101), NumericError);
}

TEST(CTable02Test, FindsTheLongestThatFits) {
    CTable02 lengths;
    lengths.Create(4);
    std::int16_t position = 0;
    for (const int value : {2020, 1520, 820, 300}) lengths.AddNew(Checked16(value), 5, ++position);
    test::RecordingNotice notice;
    EXPECT_EQ(lengths.FindJustFor(6000, 6000, notice), 1);
    EXPECT_EQ(lengths.FindJustFor(2019, 6000, notice), 2);
    EXPECT_EQ(lengths.FindJustFor(299, 6000, notice), CTable02::kNothingFits);
    lengths.Remove(2);  // within the chain
    EXPECT_EQ(lengths.FindJustFor(2019, 6000, notice), 3);
    lengths.Remove(1);  // the head
    EXPECT_EQ(lengths.GetHead(), 3);
    lengths.Remove(4);  // the tail
    EXPECT_EQ(lengths.Count(), 1);
    EXPECT_EQ(lengths.FindJustFor(819, 6000, notice), CTable02::kNothingFits);
    EXPECT_TRUE(notice.shown.empty());
    EXPECT_EQ(lengths.FindJustFor(6000, 800, notice), CTable02::kBadData);
    lengths.AddNew(-5, 1, 3);
    EXPECT_EQ(lengths.FindJustFor(6000, 6000, notice), CTable02::kBadData);
    EXPECT_EQ(notice.shown, (std::vector<std::string>{"|过大：820", "|异常值：-5"}));
}

}  // namespace
}  // namespace kalvane
