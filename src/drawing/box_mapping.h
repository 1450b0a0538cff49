#pragma once

#include "drawing/primitives.h"
#include "numeric/error.h"
#include "page/paint_target.h"

namespace kalvane {

/// Maps a source box onto a destination box, x and y each with its own factor: the picture is stretched to
/// fill the destination, the aspect ratio is not kept. All arithmetic is in 32-bit floats, unrounded.
class BoxMapping {
  public:
    /// Throws NumericError (division by zero) for a source box without width or height.
    BoxMapping(const Box& source, const Box& destination) : source_(source), destination_(destination) {
        if (source.x2 == source.x1 || source.y2 == source.y1) throw NumericError::DivisionByZero();
        xFactor_ = (destination.x2 - destination.x1) / (source.x2 - source.x1);
        yFactor_ = (destination.y2 - destination.y1) / (source.y2 - source.y1);
    }

    Point operator()(Point p) const {
        return {xFactor_ * (p.x - source_.x1) + destination_.x1,
                yFactor_ * (p.y - source_.y1) + destination_.y1};
    }

  private:
    Box source_;
    Box destination_;
    float xFactor_ = 1;
    float yFactor_ = 1;
};

}  // namespace kalvane
