#pragma once

#include <string_view>

#include "drawing/primitives.h"
#include "page/paint_target.h"

namespace kalvane {

// How each kind of primitive looks on a target. All points are in target units (twips), and so are the
// constants: wings and stubs keep their size in a small preview. A stroke or text whose position is beyond
// a 32-bit float is left out, so that a target never meets one.

/// Half the width of an arrow's head.
inline constexpr float kWing = 56;
/// Length of the stub by which a dimension line stands out beyond its extension lines.
inline constexpr float kStub = 186;

void DrawStroke(PaintTarget& target, Point from, Point to);

/// The four edges between two opposite corners, starting at `p1` along x.
void DrawRectangle(PaintTarget& target, Point p1, Point p2);

/// Shaft and head, five strokes. The head is at `p2` and as long as an eighth of the shaft; its wings are
/// set off along an axis, across the shaft's main direction.
void DrawArrow(PaintTarget& target, Point p1, Point p2);

/// Dimension mark over the points p1 and p2 with its dimension line through p3: two stubs, two extension
/// lines, two arrows. A measure is vertical when it is at least as high as wide.
void DrawDim(PaintTarget& target, Point p1, Point p2, Point p3);

/// True when no circle goes through the three points.
bool AreInLine(Point p1, Point p2, Point p3);

/// The circle through three points as 15 chords, from the smaller to the greater of the two angles at
/// which p1 and p3 stand. Angles are taken with 3.14 for a half turn. Nothing is drawn when the points are
/// in line or when p1 or p3 is straight above or below the centre.
void DrawArc(PaintTarget& target, Point p1, Point p2, Point p3);

/// Text with its left edge at `x` and the middle of its line at `y`.
void Draw_String(PaintTarget& target, float x, float y, std::string_view text);

}  // namespace kalvane
