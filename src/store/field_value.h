#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "numeric/date.h"

namespace kalvane {

/// One value of a row: Null, a whole number, a 32-bit or 64-bit float, a date, or a text.
class FieldValue {
  public:
    FieldValue() = default;
    explicit FieldValue(std::int64_t value) : value_(value) {}
    explicit FieldValue(float value) : value_(value) {}
    explicit FieldValue(double value) : value_(value) {}
    explicit FieldValue(Date value) : value_(value) {}
    explicit FieldValue(std::string value) : value_(std::move(value)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(value_); }

    /// The value as text, numbers in general form, dates as DateText; throws NumericError on Null.
    std::string Text() const;

    /// As Text, with Null as empty text.
    std::string TextOrEmpty() const;

    /// The value as a number; a text must be one as a whole, a date is its days. Throws NumericError on Null
    /// and bad text.
    double Number() const;

    /// Reference to the text of a text value, for loops that would otherwise copy; empty for other kinds.
    const std::string& TextView() const;

    using Value = std::variant<std::monostate, std::int64_t, float, double, Date, std::string>;
    const Value& Get() const { return value_; }

  private:
    Value value_;
};

}  // namespace kalvane
