#pragma once

#include <QImage>
#include <span>
#include <string>
#include <string_view>

#include "drawing/mcpicture.h"
#include "drawing/window_label.h"
#include "ui/painter_target.h"

namespace kalvane {

// The picture of a project window: its drawing without the names of the labels, with their values in their
// place.

/// Prints the values over a drawing stretched over (0, 0, inner.x2, inner.y2), each with its top left at its
/// position. The value with the index `selected` is red; -1 for none.
void PaintLabelValues(PainterTarget& target, std::span<const WindowLabel> labels, const Box& inner,
                      int selected = -1);

/// The picture as an image of `size` pixels, white, with the frame's shape kept and centred. `dotsPerInch`
/// sets the scale of texts, wings and stubs: 96 gives what a picture box of that size shows.
QImage WindowPictureImage(const MCPicture& picture, std::span<const WindowLabel> labels, QSize size,
                          double dotsPerInch = 96);

}  // namespace kalvane
