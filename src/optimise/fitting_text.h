#pragma once

#include <string_view>

#include "page/page_target.h"

namespace kalvane {

/// Makes the font small enough for `text` to be at most `width` twips wide, as far as a text can still be
/// read, and sets it. False when the text is too wide even so.
bool SetFittingFont(PageTarget& target, std::string_view text, PageFont font, float width);

/// Draws a text in the middle of a box, smaller where the box is narrow, and not at all where it would not
/// fit.
void DrawFittingText(PageTarget& target, const Box& box, std::string_view text, PageFont font);

}  // namespace kalvane
