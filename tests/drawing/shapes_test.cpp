#include "drawing/shapes.h"

#include <cmath>
#include <limits>

#include "drawing/recorders.h"
#include "numeric/error.h"

namespace kalvane::test {
namespace {

TEST(Shapes, ArrowsAndDimensionMarks) {
    const struct {
        std::vector<Point> points;  // two of an arrow, three of a mark
        const char* painted;        // of a mark: stubs and extension lines, which its two arrows follow
    } kCases[] = {
        {{{0, 0}, {0, 2400}}, "0,0 0,2400; 0,2400 56,2100; 0,2400 -56,2100; 56,2100 0,2200; -56,2100 0,2200"},
        {{{2400, 9}, {0, 9}}, "2400,9 0,9; 0,9 300,65; 0,9 300,-47; 300,65 200,9; 300,-47 200,9"},
        // As high as wide counts as steep.
        {{{0, 0}, {24, 24}}, "0,0 24,24; 24,24 77,21; 24,24 -35,21; 77,21 22,22; -35,21 22,22"},
        {{{5, 5}, {5, 5}}, "5,5 5,5; 5,5 61,5; 5,5 -51,5; 61,5 5,5; -51,5 5,5"},
        // Upright, line on the left: d = 400 - 1000.
        {{{1000, 500}, {1000, 1700}, {400, 900}},
         "400,500 214,500; 400,1700 214,1700; 400,500 1000,500; 400,1700 1000,1700; 400,500 400,1700; "
         "400,1700 456,1550; 400,1700 344,1550; 456,1550 400,1600; 344,1550 400,1600; 400,1700 400,500; "
         "400,500 456,650; 400,500 344,650; 456,650 400,600; 344,650 400,600"},
        // Slanted and flat: the measure's height at x = 600 is 300, so d = 700.
        {{{0, 0}, {1200, 600}, {600, 1000}},
         "0,700 0,886; 1200,1300 1200,1486; 0,700 0,0; 1200,1300 1200,600; 0,700 1200,1300; "},
        // Slanted and steep: the measure's x at y = 100 is 50, so d = 250.
        {{{0, 0}, {100, 200}, {300, 100}}, "250,0 436,0; 350,200 536,200; 250,0 0,0; 350,200 100,200; "},
        // No measure: the foot is the point itself.
        {{{9, 9}, {9, 9}, {30, 70}}, "30,9 216,9; 30,9 216,9; 30,9 9,9; 30,9 9,9; 30,9 30,9; "},
    };
    for (const auto& c : kCases) {
        RecordingTarget target;
        if (c.points.size() == 2) {
            DrawArrow(target, c.points[0], c.points[1]);
            EXPECT_EQ(target.painted, c.painted);
        } else {
            DrawDim(target, c.points[0], c.points[1], c.points[2]);
            EXPECT_EQ(target.painted.substr(0, std::string(c.painted).size()), c.painted);
            EXPECT_EQ(target.ends.size(), 14U);
        }
    }
}

TEST(Shapes, NoTargetMeetsAPositionBeyondAFloat) {
    constexpr float kHuge = std::numeric_limits<float>::max();
    RecordingTarget target;
    DrawDim(target, {-kHuge, 0}, {kHuge, 1}, {5, kHuge});
    DrawArc(target, {-kHuge, 0}, {kHuge, 0}, {0, kHuge});
    Draw_String(target, std::numeric_limits<float>::quiet_NaN(), 0, "B");
    EXPECT_EQ(target.painted.find_first_of("nB"), std::string::npos) << target.painted;  // nan, inf, the text
}

TEST(Shapes, ArcSweepsFromTheSmallerAngleToTheGreater) {
    // Circle around (0, 0) with radius 100. Angles: (100, 0) at 0, (-100, 0) at 3.14, and (60, 80), which
    // is below the centre, at 6.28 - 0.9272952 = 5.3527048. Where p2 lies does not matter.
    const struct {
        Point p1, p3;
        double start, end;
    } kCases[] = {
        {{100, 0}, {-100, 0}, 0, 3.14},
        {{-100, 0}, {100, 0}, 0, 3.14},
        {{60, 80}, {-100, 0}, 3.14, 5.3527048},
    };
    for (const auto& c : kCases) {
        RecordingTarget target;
        DrawArc(target, c.p1, {0, 100}, c.p3);
        ASSERT_EQ(target.ends.size(), 15U);
        for (int i = 1; i <= 15; ++i) {
            const double angle = c.start + i * (c.end - c.start) / 15;
            const Point end = target.ends[static_cast<std::size_t>(i - 1)];
            EXPECT_LT(std::hypot(end.x - 100 * std::cos(angle), end.y + 100 * std::sin(angle)), 1e-3);
        }
    }
    const Point kNoAngle[][3] = {
        {{0, 0}, {50, 50}, {100, 100}},              // in line
        {{0, -100}, {100, 0}, {-100, 0}},            // p1 above the centre
        {{2255, 3000}, {2355, 2900}, {2255, 2800}},  // p1 below the centre, off the origin
        {{100, 0}, {-100, 0}, {0, 100}},             // p3 below the centre
    };
    for (const auto& c : kNoAngle) {
        RecordingTarget target;
        DrawArc(target, c[0], c[1], c[2]);
        EXPECT_EQ(target.painted, "");
    }
}

TEST(Painting, StretchesTheFrameOverTheBoxInOrderOfKinds) {
    RecordingNotice notice;
    CPictire picture(notice);
    picture.AddArc({{0, 0}, {1, 1}, {2, 2}});  // in line before the mapping, no longer behind it
    picture.AddString({{4747.5F, 3967.5F}, "B"});
    picture.AddRec({{0, 0}, {9495, 7935}});
    picture.AddLine({{9495, 0}, {4747.5F, 7935}});
    const std::string strokes =
        "5500,1000 2750,4917; "
        "0,1000 5500,1000; 5500,1000 5500,4917; 5500,4917 0,4917; 0,4917 0,1000";
    const Box box{0, 1000, 5500, 4917};
    RecordingTarget all, bare, mirrored;
    picture.PrintPic(all, kFrame, box);
    EXPECT_EQ(all.painted, strokes + "; 2750,2838.5 B");  // half of 240 above the middle
    picture.OutMCNoStr(bare, kFrame, box);
    EXPECT_EQ(bare.painted, strokes);
    picture.OutMCNoStr(mirrored, kFrame, {1000, 0, 0, 1000});
    EXPECT_EQ(mirrored.painted.substr(0, 13), "0,0 500,1000;");
    EXPECT_THROW(picture.PrintPic(bare, {0, 0, 0, 7935}, box), NumericError);
}

}  // namespace
}  // namespace kalvane::test
