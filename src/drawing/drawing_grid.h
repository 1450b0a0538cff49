#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "drawing/primitives.h"

namespace kalvane {

/// Cells of the desk's grid.
inline constexpr std::int16_t kGridColumns = 80;
inline constexpr std::int16_t kGridRows = 64;

/// The grid of the drawing desk: 80 by 64 cells over the canvas. Points of the mouse snap to it, and typed
/// points are counted in its cells.
class DrawingGrid {
  public:
    DrawingGrid(float canvasWidth, float canvasHeight);

    /// The grid point left of and above `at` (right of and below it where a coordinate is negative), in whole
    /// units, ties to even. Throws NumericError for a point beyond 32-bit integers.
    Point Snap(Point at) const;

    /// A typed point: "x,y" counted from the origin, "@x,y" from `last`, "@length<degrees" from `last` with
    /// positive angles going up. A half turn counts as 3.14. The numbers are read as Val reads them. Nothing
    /// for any other text; throws NumericError for a number that is too large.
    std::optional<Point> TypedPoint(std::string_view text, Point last) const;

  private:
    Point AtCells(double x, double y, Point from) const;

    float dx_;
    float dy_;
};

}  // namespace kalvane
