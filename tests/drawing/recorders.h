#pragma once

#include <string>
#include <vector>

#include "drawing/cpictire.h"
#include "numeric/number.h"
#include "support/recording_notice.h"

namespace kalvane {

/// "x,y" for each point, with blanks between.
inline std::string PointText(std::initializer_list<Point> points) {
    std::string text;
    for (const Point& p : points) text += (text.empty() ? "" : " ") + ShortText(p.x) + "," + ShortText(p.y);
    return text;
}

/// Keeps what is painted: "x1,y1 x2,y2; x,y text; ...".
class RecordingTarget : public PaintTarget {
  public:
    void DrawLine(float x1, float y1, float x2, float y2) override {
        Note(PointText({{x1, y1}, {x2, y2}}));
        ends.push_back({x2, y2});
    }
    void DrawText(float x, float y, std::string_view text) override {
        Note(PointText({{x, y}}) + " " + std::string(text));
    }
    float TextHeight(std::string_view) const override { return 240; }
    void NewPage() override {}

    std::string painted;
    std::vector<Point> ends;

  private:
    void Note(const std::string& what) { painted += (painted.empty() ? "" : "; ") + what; }
};

using test::RecordingNotice;

/// All items of a drawing, kind after kind in the order of the array.
inline std::string Describe(const CPictire& picture) {
    std::string text;
    const auto add = [&](const char* kind, const std::string& item) {
        text += (text.empty() ? "" : "; ") + std::string(kind) + item;
    };
    for (const auto& item : picture.Lines()) add("Line ", PointText({item.p1, item.p2}));
    for (const auto& item : picture.Rectangles()) add("Rec ", PointText({item.p1, item.p2}));
    for (const auto& item : picture.Arrows()) add("Dir ", PointText({item.p1, item.p2}));
    for (const auto& item : picture.Dimensions()) add("Dim ", PointText({item.p1, item.p2, item.p3}));
    for (const auto& item : picture.Strings()) add("String ", PointText({item.at}) + " " + item.text);
    for (const auto& item : picture.Arcs()) add("Arc ", PointText({item.p1, item.p2, item.p3}));
    return text;
}

/// One item of each kind, as kEachKind tells.
inline void FillWithEachKind(CPictire& picture) {
    picture.AddLine({{1266, 0}, {0.5F, -3}});
    picture.AddRec({{10, 20}, {30, 40}});
    picture.AddDir({{1, 2}, {3, 4}});
    picture.AddDim({{1, 2}, {3, 4}, {5, 6}});
    picture.AddString({{7, 8}, "框厚 KH1"});
    picture.AddArc({{9, 8}, {7, 6}, {5, 4}});
}
inline constexpr const char* kEachKind =
    "Line 1266,0 0.5,-3; Rec 10,20 30,40; Dir 1,2 3,4; Dim 1,2 3,4 5,6; String 7,8 框厚 KH1; "
    "Arc 9,8 7,6 5,4";

}  // namespace kalvane
