#pragma once

#include "drawing/primitives.h"
#include "page/paint_target.h"

namespace kalvane {

/// The canvas of the drawing desk, in drawing units: a persistent layer, on which shapes stay, and a
/// transient one above it for the shape that follows the mouse.
class Canvas {
  public:
    virtual ~Canvas() = default;

    /// The drawing frame.
    virtual float Width() const = 0;
    virtual float Height() const = 0;

    /// Where shapes that stay are painted. Good until the next call of the canvas.
    virtual PaintTarget& Persistent() = 0;
    /// Drops the transient shapes and hands out their layer for the next one.
    virtual PaintTarget& Transient() = 0;
    /// A dot that stays.
    virtual void DrawDot(float x, float y) = 0;

    /// Drops the transient shapes.
    virtual void Refresh() = 0;
    /// Empties both layers.
    virtual void Clear() = 0;

    /// Line style of what is painted from here on, solid at first.
    virtual void SetDashed(bool dashed) = 0;

    /// Shows the cross-hair at a point.
    virtual void ShowCrossHair(Point at) = 0;
};

}  // namespace kalvane
