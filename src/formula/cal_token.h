#pragma once

#include <string_view>

namespace kalvane {

/// What the evaluator makes of one piece of formula text, found out once instead of at each use: an
/// operator character, a number, nothing, or a text that is neither and counts for nothing.
class CalToken {
  public:
    /// A token without content, so that arrays of them cost nothing; to be assigned before it is read.
    CalToken() = default;

    /// Nothing for an empty text, a number for digits with at most one dot, neither for all else. A number
    /// beyond a 64-bit float reads as infinity.
    explicit CalToken(std::string_view text);

    explicit constexpr CalToken(char operation) : kind_(operation), value_(0) {}
    explicit constexpr CalToken(double number) : kind_(kNumber), value_(number) {}

    bool IsNothing() const { return kind_ == kNothing; }
    bool IsNumber() const { return kind_ == kNumber; }

    /// The operator character; a character that is no operator for all other tokens.
    char Operation() const { return kind_; }

    /// The number that the text reads as: 0 for every text that is none.
    double Value() const { return value_; }

  private:
    static constexpr char kNothing = 'e';
    static constexpr char kNumber = 'n';
    static constexpr char kNeither = '?';

    char kind_;
    double value_;
};

/// Digits alone, few enough that a 64-bit float holds them exactly: most numbers of a formula, and many whole
/// formulas.
bool IsShortWholeNumber(std::string_view text);

}  // namespace kalvane
