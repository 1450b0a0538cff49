#include "drawing/drawing_grid.h"

#include "drawing/recorders.h"
#include "numeric/error.h"

namespace kalvane::test {
namespace {

// Cells of 118.6875 by 123.984375 units.
const DrawingGrid kGrid(9495, 7935);

TEST(DrawingGrid, SnapsLeftAndUpToWholeUnits) {
    const std::pair<Point, Point> cases[] = {
        {{0, 0}, {0, 0}},
        {{118.6F, 123.9F}, {0, 0}},
        {{2255.0625F, 5827.265625F}, {2255, 5827}},  // 19 and 47 cells
        {{2373, 5951}, {2255, 5827}},                // just before the next
        {{950, 3968}, {950, 3968}},  // 8 cells are 949.5, 32 are 3967.5: to the even neighbour
        {{2850, 0}, {2848, 0}},      // 24 cells are 2848.5
        {{9495, 7935}, {9495, 7935}},
        {{-100, -130}, {0, -124}},
    };
    for (const auto& [at, snapped] : cases) EXPECT_EQ(PointText({kGrid.Snap(at)}), PointText({snapped}));
}

TEST(DrawingGrid, ReadsTypedPoints) {
    const Point last{1000, 2000};
    const std::pair<const char*, const char*> cases[] = {
        {"10,20", "1186.875,2479.688"},
        {"10.5X,", "1246.219,0"},           // 10.5 cells are 1246.21875
        {"a,-1", "0,-123.9844"},            // no number is 0
        {"1,2,3", "118.6875,247.9688"},     // what follows the second comma is not read
        {"@5,0", "1593.438,2000"},          // 5 cells are 593.4375
        {"@-5,1", "406.5625,2123.984"},     //
        {"@10<0", "2186.875,2000"},         //
        {"@10<90", "1000.945,760.1566"},    // cos and sin of 1.57: 0.000796327 and 0.999999683
        {"@10<180", "-186.8735,1998.025"},  // of 3.14: -0.999998732 and 0.001592653
        {"@10", ""},
        {"X", ""},
        {"10<90", ""},
    };
    for (const auto& [text, expected] : cases) {
        const std::optional<Point> point = kGrid.TypedPoint(text, last);
        EXPECT_EQ(point ? PointText({*point}) : "", expected) << text;
    }
    EXPECT_THROW(kGrid.TypedPoint("1e39,0", last), NumericError);
}

}  // namespace
}  // namespace kalvane::test
