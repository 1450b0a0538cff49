#include "drawing/shapes.h"

#include <cmath>
#include <optional>
#include <utility>

namespace kalvane {
namespace {

// Short values of pi on purpose: drawings look as their makers saw them.
constexpr double kHalfTurn = 3.14;
constexpr double kFullTurn = 6.28;
constexpr int kChords = 15;

bool IsSteep(Point p1, Point p2) {
    return std::fabs(p1.y - p2.y) >= std::fabs(p1.x - p2.x);
}

/// Ratio for a point on a line; a mark whose two measured points are one has none, and its foot is that
/// point.
float Slope(float across, float along) {
    return along == 0 ? 0 : across / along;
}

/// Angle of a point, given its offset (u, v) from the centre with v upward; none straight above
/// and below it.
std::optional<double> AngleAt(double u, double v) {
    if (u == 0) return std::nullopt;
    const double angle = std::atan(v / u);
    if (u < 0) return angle + kHalfTurn;
    return v >= 0 ? angle : kFullTurn + angle;
}

/// Twice the signed area of the triangle. In 64 bits it is exact for whole coordinates.
double Determinant(Point p1, Point p2, Point p3) {
    const double x2 = p2.x, y2 = p2.y;
    return (p1.x - x2) * (p3.y - y2) - (p3.x - x2) * (p1.y - y2);
}

}  // namespace

void DrawStroke(PaintTarget& target, Point from, Point to) {
    if (std::isfinite(from.x) && std::isfinite(from.y) && std::isfinite(to.x) && std::isfinite(to.y)) {
        target.DrawLine(from.x, from.y, to.x, to.y);
    }
}

void DrawRectangle(PaintTarget& target, Point p1, Point p2) {
    DrawStroke(target, {p1.x, p1.y}, {p2.x, p1.y});
    DrawStroke(target, {p2.x, p1.y}, {p2.x, p2.y});
    DrawStroke(target, {p2.x, p2.y}, {p1.x, p2.y});
    DrawStroke(target, {p1.x, p2.y}, {p1.x, p1.y});
}

void DrawArrow(PaintTarget& target, Point p1, Point p2) {
    const Point base{p2.x - (p2.x - p1.x) / 8, p2.y - (p2.y - p1.y) / 8};
    const Point notch{p2.x - (p2.x - p1.x) / 12, p2.y - (p2.y - p1.y) / 12};
    const Point across = IsSteep(p1, p2) ? Point{kWing, 0} : Point{0, kWing};
    const Point wing1{base.x + across.x, base.y + across.y};
    const Point wing2{base.x - across.x, base.y - across.y};
    DrawStroke(target, p1, p2);
    DrawStroke(target, p2, wing1);
    DrawStroke(target, p2, wing2);
    DrawStroke(target, wing1, notch);
    DrawStroke(target, wing2, notch);
}

void DrawDim(PaintTarget& target, Point p1, Point p2, Point p3) {
    Point offset;  // from a measured point to its end of the dimension line
    Point stub;
    if (IsSteep(p1, p2)) {
        const float footX = Slope((p1.x - p2.x) * (p3.y - p2.y), p1.y - p2.y) + p2.x;
        offset = {p3.x - footX, 0};
        stub = {offset.x < 0 ? -kStub : kStub, 0};
    } else {
        const float footY = Slope((p1.y - p2.y) * (p3.x - p2.x), p1.x - p2.x) + p2.y;
        offset = {0, p3.y - footY};
        stub = {0, offset.y < 0 ? -kStub : kStub};
    }
    const Point q1{p1.x + offset.x, p1.y + offset.y};
    const Point q2{p2.x + offset.x, p2.y + offset.y};
    DrawStroke(target, q1, {q1.x + stub.x, q1.y + stub.y});
    DrawStroke(target, q2, {q2.x + stub.x, q2.y + stub.y});
    DrawStroke(target, q1, p1);
    DrawStroke(target, q2, p2);
    DrawArrow(target, q1, q2);
    DrawArrow(target, q2, q1);
}

bool AreInLine(Point p1, Point p2, Point p3) {
    return Determinant(p1, p2, p3) == 0;
}

void DrawArc(PaintTarget& target, Point p1, Point p2, Point p3) {
    // In 64 bits: the products of squares need about 44 bits for whole coordinates of the frame, and the
    // tests against zero below are meant exactly.
    const double x1 = p1.x, y1 = p1.y, x2 = p2.x, y2 = p2.y, x3 = p3.x, y3 = p3.y;
    const double a = x1 - x2;
    const double b = y1 - y2;
    const double c = x3 - x2;
    const double f = y3 - y2;
    const double g = ((y2 + y1) * b + (x1 + x2) * a) / 2;
    const double h = ((y2 + y3) * f + (x2 + x3) * c) / 2;
    const double determinant = Determinant(p1, p2, p3);
    if (determinant == 0) return;

    const double cx = (g * f - h * b) / determinant;
    const double cy = (a * h - c * g) / determinant;
    const double radius = std::hypot(y1 - cy, x1 - cx);
    std::optional<double> start = AngleAt(x1 - cx, cy - y1);
    std::optional<double> end = AngleAt(x3 - cx, cy - y3);
    if (!start || !end) return;
    if (*end < *start) std::swap(start, end);

    const double step = (*end - *start) / kChords;
    const auto pointAt = [&](int i) {
        const double angle = i * step + *start;
        return Point{static_cast<float>(radius * std::cos(angle) + cx),
                     static_cast<float>(cy - radius * std::sin(angle))};
    };
    Point from = pointAt(0);
    for (int i = 1; i <= kChords; ++i) {
        const Point to = pointAt(i);
        DrawStroke(target, from, to);
        from = to;
    }
}

void Draw_String(PaintTarget& target, float x, float y, std::string_view text) {
    const float top = y - target.TextHeight("国") / 2;
    if (std::isfinite(x) && std::isfinite(top)) target.DrawText(x, top, text);
}

}  // namespace kalvane
