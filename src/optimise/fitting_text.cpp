#include "optimise/fitting_text.h"

#include <algorithm>

namespace kalvane {
namespace {
constexpr float kSmallestPoints = 3.5F;
constexpr float kSideGap = 20;  // twips
}  // namespace

bool SetFittingFont(PageTarget& target, std::string_view text, PageFont font, float width) {
    target.SetFont(font);
    const float needed = target.TextWidth(text);
    if (needed > width) {
        font.points = std::max(kSmallestPoints, font.points * width / needed);
        target.SetFont(font);
    }
    return target.TextWidth(text) <= width * 1.01F;  // a font's size changes in small steps
}

void DrawFittingText(PageTarget& target, const Box& box, std::string_view text, PageFont font) {
    if (!SetFittingFont(target, text, font, box.x2 - box.x1 - 2 * kSideGap)) return;
    target.DrawText((box.x1 + box.x2 - target.TextWidth(text)) / 2,
                    (box.y1 + box.y2 - target.TextHeight(text)) / 2, text);
}

}  // namespace kalvane
