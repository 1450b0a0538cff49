#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

enum class BoxKind {
    Text,
    Lines,           ///< a text of several lines
    Digits,          ///< digits only
    Decimal,         ///< digits and points
    Choice,          ///< one of a list; none is chosen while the text is empty
    EditableChoice,  ///< a list that offers numbers, beside typing one of digits and points
};

/// A box of a screen of the wind-pressure checks.
struct FormBox {
    std::string_view name;  ///< of the control
    std::string_view caption;
    std::string_view preset;
    BoxKind kind = BoxKind::Text;
    std::span<const std::string_view> choices = {};
    std::string_view unit = {};  ///< shown behind the box
};

using FormBoxes = std::span<const FormBox>;

/// What a check cannot start without: the box that lacks it, and what the operator is told.
struct Refusal {
    std::string_view name;
    std::string_view message;
};

/// What stands in the boxes of a screen, as texts. The name of a box that does not exist is a programming
/// error but where Set takes it from outside.
class FormTexts {
  public:
    /// Every box holds its preset. `boxes` must outlive the texts.
    explicit FormTexts(FormBoxes boxes);

    FormBoxes Boxes() const { return boxes_; }
    bool operator==(const FormTexts& other) const { return texts_ == other.texts_; }
    const std::string& Text(std::string_view name) const;

    /// Throws Error, telling what there is, when no box has that name or a list has no such entry.
    void Set(std::string_view name, std::string_view text);

    /// Place of the chosen entry in its list; nothing when none is chosen.
    std::optional<std::size_t> Chosen(std::string_view name) const;
    /// The same of a list of which an entry is known to be chosen.
    std::size_t Choice(std::string_view name) const;

    // The whole text as a number, converted to a width. A failure is a NumericError that names the box.
    std::int16_t Int16(std::string_view name) const;
    float Float(std::string_view name) const;

    // The number a text begins with, 0 when there is none. A value too large is a NumericError that names
    // the box.
    std::int16_t LeadingInt16(std::string_view name) const;
    float LeadingFloat(std::string_view name) const;
    double LeadingDouble(std::string_view name) const;

  private:
    std::size_t Place(std::string_view name) const;
    template <typename Convert>
    auto Converted(std::string_view name, Convert convert) const;

    FormBoxes boxes_;
    std::vector<std::string> texts_;  ///< one a box
};

/// A caption without the colon at its end, to stand in a message.
std::string_view CaptionWord(std::string_view caption);

}  // namespace kalvane
