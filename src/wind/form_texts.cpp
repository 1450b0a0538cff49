#include "wind/form_texts.h"

#include <algorithm>

#include "numeric/assertion.h"
#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {

std::string_view CaptionWord(std::string_view caption) {
    constexpr std::string_view kColon = "：";
    if (caption.ends_with(kColon)) caption.remove_suffix(kColon.size());
    return caption;
}

FormTexts::FormTexts(FormBoxes boxes) : boxes_(boxes) {
    for (const FormBox& box : boxes) texts_.emplace_back(box.preset);
}

std::size_t FormTexts::Place(std::string_view name) const {
    const auto found =
        std::find_if(boxes_.begin(), boxes_.end(), [name](const FormBox& box) { return box.name == name; });
    return static_cast<std::size_t>(found - boxes_.begin());
}

const std::string& FormTexts::Text(std::string_view name) const {
    const std::size_t place = Place(name);
    KALVANE_ASSERT(place < texts_.size());
    return texts_[place];
}

void FormTexts::Set(std::string_view name, std::string_view text) {
    const std::size_t place = Place(name);
    const auto listed = [](std::string& list, std::string_view entry) {
        if (!list.empty()) list += "、";
        list += entry;
    };
    if (place == boxes_.size()) {
        std::string names;
        for (const FormBox& box : boxes_) listed(names, box.name);
        throw Error("没有名为“" + std::string(name) + "”的输入框。可用的有：" + names + "。");
    }
    const FormBox& box = boxes_[place];
    const bool isNone = text.empty() && box.preset.empty();
    if (box.kind == BoxKind::Choice && !isNone &&
        std::find(box.choices.begin(), box.choices.end(), text) == box.choices.end()) {
        std::string choices;
        for (const std::string_view choice : box.choices) listed(choices, choice);
        throw Error("“" + std::string(CaptionWord(box.caption)) + "”没有“" + std::string(text) +
                    "”这一项。可选：" + choices + "。");
    }
    texts_[place] = text;
}

std::optional<std::size_t> FormTexts::Chosen(std::string_view name) const {
    const std::string& text = Text(name);
    const auto& choices = boxes_[Place(name)].choices;
    const auto found = std::find(choices.begin(), choices.end(), text);
    if (found == choices.end()) return std::nullopt;
    return static_cast<std::size_t>(found - choices.begin());
}

std::size_t FormTexts::Choice(std::string_view name) const {
    const std::optional<std::size_t> chosen = Chosen(name);
    KALVANE_ASSERT(chosen.has_value());
    return *chosen;
}

template <typename Convert>
auto FormTexts::Converted(std::string_view name, Convert convert) const {
    const std::string& text = Text(name);
    try {
        return convert(text);
    } catch (const NumericError& failure) {
        throw NumericError(std::string(failure.what()) + "：“" +
                           std::string(CaptionWord(boxes_[Place(name)].caption)) + "”中的“" + text +
                           "”不能使用，请改正后再校核。");
    }
}

std::int16_t FormTexts::Int16(std::string_view name) const {
    return Converted(name, [](std::string_view text) { return RoundToInt16(ParseNumber(text)); });
}

float FormTexts::Float(std::string_view name) const {
    return Converted(name, [](std::string_view text) { return NarrowToFloat(ParseNumber(text)); });
}

std::int16_t FormTexts::LeadingInt16(std::string_view name) const {
    return Converted(name, [](std::string_view text) { return RoundToInt16(Val(text)); });
}

float FormTexts::LeadingFloat(std::string_view name) const {
    return Converted(name, [](std::string_view text) { return NarrowToFloat(Val(text)); });
}

double FormTexts::LeadingDouble(std::string_view name) const {
    return Converted(name, [](std::string_view text) { return Val(text); });
}

}  // namespace kalvane
