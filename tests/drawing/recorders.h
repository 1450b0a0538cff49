#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "drawing/cpictire.h"
#include "numeric/number.h"
#include "platform/notice.h"

namespace kalvane {

/// Keeps strokes as "x1,y1 x2,y2" and texts as "x,y text".
class RecordingTarget : public PaintTarget {
  public:
    void DrawLine(float x1, float y1, float x2, float y2) override {
        finite = finite && std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2);
        strokes.push_back(At(x1, y1) + " " + At(x2, y2));
        ends.push_back({x2, y2});
    }
    void DrawText(float x, float y, std::string_view text) override {
        strokes.push_back(At(x, y) + " " + std::string(text));
    }
    float TextHeight(std::string_view) const override { return 240; }
    void NewPage() override {}

    static std::string At(float x, float y) { return ShortText(x) + "," + ShortText(y); }

    std::vector<std::string> strokes;
    std::vector<Point> ends;
    bool finite = true;
};

class RecordingNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string& title, NoticeIcon) override {
        shown.push_back(title + ": " + text);
    }
    std::vector<std::string> shown;
};

/// All items of a drawing, kind after kind in the order of the array.
inline std::string Describe(const CPictire& picture) {
    std::string text;
    const auto add = [&](const char* kind, std::initializer_list<Point> points) {
        text += (text.empty() ? "" : "; ") + std::string(kind);
        for (const Point& p : points) text += " " + RecordingTarget::At(p.x, p.y);
    };
    for (const auto& item : picture.Lines()) add("Line", {item.p1, item.p2});
    for (const auto& item : picture.Rectangles()) add("Rec", {item.p1, item.p2});
    for (const auto& item : picture.Arrows()) add("Dir", {item.p1, item.p2});
    for (const auto& item : picture.Dimensions()) add("Dim", {item.p1, item.p2, item.p3});
    for (const auto& item : picture.Strings()) {
        add("String", {item.at});
        text += " " + item.text;
    }
    for (const auto& item : picture.Arcs()) add("Arc", {item.p1, item.p2, item.p3});
    return text;
}

/// One item of each kind, texts included.
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
