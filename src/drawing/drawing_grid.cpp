#include "drawing/drawing_grid.h"

#include <cmath>

#include "numeric/number.h"

namespace kalvane {
namespace {

// A short value of pi on purpose, as in the arcs.
constexpr double kHalfTurn = 3.14;
constexpr double kHalfTurnDegrees = 180;

float SnapCoordinate(float value, float pitch) {
    const float onGrid = std::trunc(value / pitch) * pitch;
    return static_cast<float>(RoundToInt32(onGrid));
}

}  // namespace

DrawingGrid::DrawingGrid(float canvasWidth, float canvasHeight)
    : dx_(canvasWidth / kGridColumns), dy_(canvasHeight / kGridRows) {}

Point DrawingGrid::Snap(Point at) const {
    return {SnapCoordinate(at.x, dx_), SnapCoordinate(at.y, dy_)};
}

Point DrawingGrid::AtCells(double x, double y, Point from) const {
    return {NarrowToFloat(x * dx_ + from.x), NarrowToFloat(y * dy_ + from.y)};
}

std::optional<Point> DrawingGrid::TypedPoint(std::string_view text, Point last) const {
    const bool relative = text.starts_with('@');
    const std::string_view numbers = text.substr(relative ? 1 : 0);
    if (const std::size_t comma = numbers.find(','); comma != std::string_view::npos) {
        return AtCells(Val(numbers.substr(0, comma)), Val(numbers.substr(comma + 1)),
                       relative ? last : Point{});
    }
    if (const std::size_t angle = numbers.find('<'); relative && angle != std::string_view::npos) {
        const double length = Val(numbers.substr(0, angle));
        const double turn = Val(numbers.substr(angle + 1)) / kHalfTurnDegrees * kHalfTurn;
        return AtCells(length * std::cos(turn), -length * std::sin(turn), last);
    }
    return std::nullopt;
}

}  // namespace kalvane
