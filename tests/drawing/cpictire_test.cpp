#include "drawing/cpictire.h"

#include "drawing/recorders.h"

namespace kalvane::test {

class CPictireTest : public testing::Test {
  protected:
    RecordingNotice notice_;
    CPictire picture_{notice_};
};

TEST_F(CPictireTest, ThreeHundredAndSixtyTwoIsOneTooMany) {
    for (int i = 0; i < 361; ++i) picture_.AddLine({});
    EXPECT_TRUE(notice_.shown.empty());
    picture_.AddLine({{1, 1}, {2, 2}});
    EXPECT_EQ(notice_.shown, std::vector<std::string>{"#Error|数组超出范围,请与程序员联系"});
    EXPECT_EQ(picture_.Lines().LastIndex(), 360);
    picture_.AddArc({});  // each kind has room of its own
    EXPECT_EQ(picture_.Arcs().Count(), 1);
    EXPECT_EQ(notice_.shown.size(), 1U);
}

TEST_F(CPictireTest, ABoxTakesItemsWithAStoredPointInside) {
    const Point in{15, 15};
    const Point out{100, 100};
    const Point other{0, 15};
    picture_.AddLine({out, in});
    picture_.AddLine({other, {100, 15}});  // crosses the box
    picture_.AddLine({in, in});            // moves to the place of the first and is tested there
    picture_.AddRec({{0, 0}, {100, 15}});  // an edge in the box, no stored corner
    picture_.AddRec({in, out});
    picture_.AddDir({out, in});
    picture_.AddDim({out, out, in});
    picture_.AddArc({out, in, out});
    picture_.AddString({in, "B"});
    picture_.AddString({out, "H"});
    Point a{20, 10};
    Point b{10, 15};  // points on an edge count, and the corners are put in order
    picture_.DelLinesIn(a, b);
    picture_.DelRecsIn(a, b);
    picture_.DelDimsIn(a, b);
    picture_.DelDirsIn(a, b);
    picture_.DelStringsIn(a, b);
    picture_.DelArcsIn(a, b);
    EXPECT_EQ(Describe(picture_), "Line 0,15 100,15; Rec 0,0 100,15; String 100,100 H");
}

}  // namespace kalvane::test
