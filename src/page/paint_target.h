#pragma once

#include <string_view>

namespace kalvane {

/// Anything a drawing or a page can be painted on: a picture box, an image, a printer or PDF page.
/// Coordinates are 32-bit floats in twips (1/1440 inch), origin top left, y downward. Strokes are black
/// unless the target was given another text colour.
class PaintTarget {
  public:
    virtual ~PaintTarget() = default;

    virtual void DrawLine(float x1, float y1, float x2, float y2) = 0;
    /// Prints UTF-8 text in the current font; (x, y) is the top left corner of the text.
    virtual void DrawText(float x, float y, std::string_view text) = 0;
    /// Height of a line of that text in twips.
    virtual float TextHeight(std::string_view text) const = 0;
    /// Ends the page and starts the next; a target that is one picture ignores it.
    virtual void NewPage() = 0;
};

/// A rectangle in twips or drawing units. Corners may come in any order; a box with x2 < x1 mirrors.
struct Box {
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
};

/// The drawing frame, in drawing units (twips).
inline constexpr float kFrameWidth = 9495;
inline constexpr float kFrameHeight = 7935;
inline constexpr Box kFrame{0, 0, kFrameWidth, kFrameHeight};

}  // namespace kalvane
