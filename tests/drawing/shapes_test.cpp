#include "drawing/shapes.h"

#include <gtest/gtest.h>

#include <limits>

#include "drawing/recorders.h"
#include "platform/error.h"

namespace kalvane {
namespace {

using Strokes = std::vector<std::string>;

TEST(Shapes, ArrowHeadIsAnEighthOfTheShaftWithWingsAlongAnAxis) {
    const struct {
        Point from, to;
        Strokes expected;
    } kCases[] = {
        {{0, 0},
         {0, 2400},
         {"0,0 0,2400", "0,2400 56,2100", "0,2400 -56,2100", "56,2100 0,2200", "-56,2100 0,2200"}},
        {{2400, 100},
         {0, 100},
         {"2400,100 0,100", "0,100 300,156", "0,100 300,44", "300,156 200,100", "300,44 200,100"}},
        // As high as wide counts as steep.
        {{0, 0},
         {240, 240},
         {"0,0 240,240", "240,240 266,210", "240,240 154,210", "266,210 220,220", "154,210 220,220"}},
        {{5, 5}, {5, 5}, {"5,5 5,5", "5,5 61,5", "5,5 -51,5", "61,5 5,5", "-51,5 5,5"}},
    };
    for (const auto& c : kCases) {
        RecordingTarget target;
        DrawArrow(target, c.from, c.to);
        EXPECT_EQ(target.strokes, c.expected);
    }
}

TEST(Shapes, DimensionMark) {
    const struct {
        Point p1, p2, p3;
        Strokes expected;  // stubs, extension lines, the two shafts
    } kCases[] = {
        // Vertical, line on the left: d = 400 - 1000.
        {{1000, 500},
         {1000, 1700},
         {400, 900},
         {"400,500 214,500", "400,1700 214,1700", "400,500 1000,500", "400,1700 1000,1700",
          "400,500 400,1700", "400,1700 400,500"}},
        // Slanted and flat, line below: the measure's height at x = 600 is 300, so d = 700.
        {{0, 0},
         {1200, 600},
         {600, 1000},
         {"0,700 0,886", "1200,1300 1200,1486", "0,700 0,0", "1200,1300 1200,600", "0,700 1200,1300",
          "1200,1300 0,700"}},
        // Slanted and steep, line on the right: the measure's x at y = 100 is 50, so d = 250.
        {{0, 0},
         {100, 200},
         {300, 100},
         {"250,0 436,0", "350,200 536,200", "250,0 0,0", "350,200 100,200", "250,0 350,200",
          "350,200 250,0"}},
        // No measure: the foot is the point itself.
        {{100, 100},
         {100, 100},
         {300, 700},
         {"300,100 486,100", "300,100 486,100", "300,100 100,100", "300,100 100,100", "300,100 300,100",
          "300,100 300,100"}},
    };
    for (const auto& c : kCases) {
        RecordingTarget target;
        DrawDim(target, c.p1, c.p2, c.p3);
        ASSERT_EQ(target.strokes.size(), 14U);  // four, and two arrows of five
        EXPECT_EQ(Strokes(target.strokes.begin(), target.strokes.begin() + 5),
                  Strokes(c.expected.begin(), c.expected.begin() + 5));
        EXPECT_EQ(target.strokes[9], c.expected[5]);
    }
}

TEST(Shapes, NoTargetMeetsAPositionBeyondAFloat) {
    constexpr float kHuge = std::numeric_limits<float>::max();
    RecordingTarget target;
    DrawDim(target, {-kHuge, 0}, {kHuge, 1}, {5, kHuge});
    DrawArrow(target, {-kHuge, 0}, {kHuge, 0});
    DrawArc(target, {-kHuge, 0}, {kHuge, 0}, {0, kHuge});
    Draw_String(target, std::numeric_limits<float>::quiet_NaN(), 0, "B");
    EXPECT_TRUE(target.finite);
    for (const std::string& stroke : target.strokes) EXPECT_EQ(stroke.find("B"), std::string::npos);
}

TEST(Shapes, ArcSweepsFromTheSmallerAngleToTheGreater) {
    // Circle around (0, 0) with radius 100. Angles: (100, 0) at 0, (-100, 0) at 3.14, and (60, 80), which
    // is below the centre, at 6.28 - 0.9272952 = 5.3527048.
    const Point left{-99.99987F, -0.15927F};
    const struct {
        Point p1, p2, p3, last;
    } kCases[] = {
        {{100, 0}, {0, 100}, {-100, 0}, left},
        {{-100, 0}, {0, 100}, {100, 0}, left},  // swapped ends, same curve
        {{60, 80}, {0, 100}, {-100, 0}, {59.74486F, 80.19071F}},
    };
    for (const auto& c : kCases) {
        RecordingTarget target;
        DrawArc(target, c.p1, c.p2, c.p3);
        ASSERT_EQ(target.strokes.size(), 15U);
        EXPECT_NEAR(target.ends.back().x, c.last.x, 1e-3);
        EXPECT_NEAR(target.ends.back().y, c.last.y, 1e-3);
        for (const Point& end : target.ends) EXPECT_NEAR(std::hypot(end.x, end.y), 100, 1e-3);
    }
    // The half circle of the first two runs above the centre, although p2 lies below it.
    RecordingTarget upper;
    DrawArc(upper, {100, 0}, {0, 100}, {-100, 0});
    EXPECT_NEAR(upper.ends[7].y, -100 * std::sin(8 * 3.14 / 15), 1e-3);
}

TEST(Shapes, ArcWithoutAnAnglePaintsNothing) {
    const Point kCases[][3] = {
        {{0, 0}, {50, 50}, {100, 100}},              // in line
        {{0, -100}, {100, 0}, {-100, 0}},            // p1 above the centre
        {{2255, 3000}, {2355, 2900}, {2255, 2800}},  // p1 below the centre, off the origin
        {{100, 0}, {-100, 0}, {0, 100}},             // p3 below the centre
    };
    for (const auto& c : kCases) {
        RecordingTarget target;
        DrawArc(target, c[0], c[1], c[2]);
        EXPECT_EQ(target.strokes, Strokes{});
    }
}

TEST(Shapes, TextIsCentredInHeightOnly) {
    RecordingTarget target;
    Draw_String(target, 500, 1000, "h1");
    EXPECT_EQ(target.strokes, Strokes{"500,880 h1"});  // 240 high
}

TEST(Painting, StretchesTheFrameOverTheBoxInOrderOfKinds) {
    RecordingNotice notice;
    CPictire picture(notice);
    picture.AddArc({{0, 0}, {1, 1}, {2, 2}});  // in line before the mapping, no longer behind it
    picture.AddString({{4747.5F, 3967.5F}, "B"});
    picture.AddRec({{0, 0}, {9495, 7935}});
    picture.AddLine({{9495, 0}, {4747.5F, 7935}});
    const Strokes edges = {"0,1000 5500,1000", "5500,1000 5500,4917", "5500,4917 0,4917", "0,4917 0,1000"};

    RecordingTarget target;
    picture.PrintPic(target, kFrame, {0, 1000, 5500, 4917});
    EXPECT_EQ(target.strokes,
              (Strokes{"5500,1000 2750,4917", edges[0], edges[1], edges[2], edges[3], "2750,2838.5 B"}));
    RecordingTarget bare;
    picture.OutMCNoStr(bare, kFrame, {0, 1000, 5500, 4917});
    EXPECT_EQ(bare.strokes, (Strokes{"5500,1000 2750,4917", edges[0], edges[1], edges[2], edges[3]}));

    RecordingTarget mirrored;
    picture.OutMCNoStr(mirrored, kFrame, {1000, 0, 0, 1000});
    EXPECT_EQ(mirrored.strokes[0], "0,0 500,1000");
    EXPECT_THROW(picture.PrintPic(bare, {0, 0, 0, 7935}, kFrame), NumericError);
}

TEST(Painting, WingsAndStubsKeepTheirSizeInAPreview) {
    RecordingNotice notice;
    CPictire picture(notice);
    picture.AddDim({{0, 0}, {2400, 0}, {1000, 1200}});
    RecordingTarget target;
    picture.PrintPic(target, kFrame, {0, 0, 949.5F, 793.5F});
    EXPECT_EQ(target.strokes[0], "0,120 0,306");
    EXPECT_EQ(target.strokes[5], "240,120 210,176");
}

}  // namespace
}  // namespace kalvane
