#pragma once

namespace kalvane {

/// One entry of the evaluator's stack and queues. Numbers stand converted, which changes nothing: a number
/// that has crossed the stack as text and one that was cut to the digits of that text are the same.
struct CalToken {
    /// What the entry is: kNumber, kEmpty, kMalformed, kNull, or the character of an operator, of an
    /// opening parenthesis or of a function code.
    char mark;
    double number;  ///< of a kNumber; all other entries read as 0

    static constexpr char kNumber = '0';
    static constexpr char kEmpty = ' ';      ///< a number buffer without digits
    static constexpr char kMalformed = '.';  ///< digits and points that make no number
    static constexpr char kNull = 'N';       ///< the answer of an empty stack

    static CalToken Of(char mark) { return {mark, 0}; }
    static CalToken Number(double value) { return {kNumber, value}; }

    bool IsNumber() const { return mark == kNumber; }
};

}  // namespace kalvane
