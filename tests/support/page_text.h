#pragma once

#include <string>
#include <vector>

#include "numeric/number.h"
#include "numeric/text.h"
#include "page/page_record.h"

namespace kalvane::test {

/// A printer's type of one width: a character of the size p points is 10 x p twips wide, a Chinese one twice
/// that, and a line is 25 x p twips high.
class FixedMeasure final : public TextMeasure {
  public:
    float Width(std::string_view text, PageFont font) const override {
        const std::size_t characters = CharCount(text);
        const std::size_t chinese = (text.size() - characters) / 2;  // three bytes each
        return static_cast<float>(characters + chinese) * 10 * font.points;
    }
    float Height(PageFont font) const override { return 25 * font.points; }
};

/// "x1,y1 x2,y2" for a line, "x,y text" for a text, "fill x1,y1 x2,y2" for a box.
inline std::string CommandText(const PageCommand& command) {
    const auto pair = [](float x, float y) { return ShortText(x) + "," + ShortText(y); };
    if (const auto* line = std::get_if<PageLine>(&command)) {
        return pair(line->x1, line->y1) + " " + pair(line->x2, line->y2);
    }
    if (const auto* text = std::get_if<PageText>(&command)) return pair(text->x, text->y) + " " + text->text;
    const auto& fill = std::get<PageFill>(command);
    return "fill " + pair(fill.box.x1, fill.box.y1) + " " + pair(fill.box.x2, fill.box.y2);
}

inline std::vector<std::string> CommandTexts(const Page& page) {
    std::vector<std::string> texts;
    for (const PageCommand& command : page) texts.push_back(CommandText(command));
    return texts;
}

}  // namespace kalvane::test
