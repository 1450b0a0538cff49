#include "store/field_value.h"

#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

struct ToText {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(Date date) const { return DateText(date); }
    template <typename Number>
    std::string operator()(Number number) const {
        return ShortText(number);
    }
};

struct ToNumber {
    double operator()(std::monostate) const { throw NumericError::NullUse(); }
    double operator()(const std::string& text) const { return ParseNumber(text); }
    double operator()(Date date) const { return date.serial; }
    template <typename Number>
    double operator()(Number number) const {
        return static_cast<double>(number);
    }
};

}  // namespace

std::string FieldValue::Text() const {
    if (IsNull()) throw NumericError::NullUse();
    return TextOrEmpty();
}

std::string FieldValue::TextOrEmpty() const {
    return std::visit(ToText{}, value_);
}

double FieldValue::Number() const {
    return std::visit(ToNumber{}, value_);
}

const std::string& FieldValue::TextView() const {
    static const std::string kEmpty;
    const auto* text = std::get_if<std::string>(&value_);
    return text == nullptr ? kEmpty : *text;
}

}  // namespace kalvane
