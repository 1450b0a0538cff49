#pragma once

#include <string>
#include <string_view>

#include "formula/cal_token.h"
#include "formula/cqueue.h"
#include "formula/cstack.h"

namespace kalvane {

/// Turns a formula text into a number. A small machine of two passes: the first puts the text into
/// postfix order with an operator stack, the second evaluates the postfix on the same stack. It checks no
/// syntax and repairs nothing, every text gives a number, and the formulas of the window types were written
/// against exactly these numbers: absent operands read as 0, unknown characters only separate, and what a
/// formula leaves on the stack serves as operand of the next one on the same object.
class Cal {
  public:
    /// Most characters of a text: positions in a formula are 16-bit.
    static constexpr std::size_t kMostCharacters = 32767;

    /// `text` in capitals with every `old`, whatever its case, replaced by `replacement` as it stands. The
    /// search restarts at the front after each replacement, so that an `old` that a replacement forms is
    /// replaced too. Throws FormulaError where that has no end: `old` is empty and the text is not, or it
    /// occurs and the replacement, in capitals, holds it, or the text grows beyond kMostCharacters.
    static std::string Replace(std::string_view text, std::string_view old, std::string_view replacement);

    /// The same in one pass: what has been put in is not searched again. Throws FormulaError when `old` is
    /// empty and `text` is not.
    static std::string Replace1(std::string_view text, std::string_view old, std::string_view replacement);

    /// The value of a formula. It knows + - * / from left to right, * and / before the others, none of them
    /// unary; parentheses; SIN, COS, TAN of degrees and ATN in degrees, all with 3.14 for pi; EXP, LOG
    /// (natural) and SQR. Each operation is computed in 64 bits and cut to 15 digits; only the result is cut
    /// to 32 bits. An operation without a value (a division by zero, a root of a negative) yields nothing,
    /// and a result beyond 32 bits leaves the one before it. Throws FormulaError, with the object as good as
    /// new but for its last result, when a ")" finds nothing to close; and, with the object untouched, beyond
    /// kMostCharacters.
    float CalExpress(std::string_view formula);

  private:
    /// First pass: the text's tokens to the raw queue, in postfix order. False when a ")" finds nothing to
    /// close, which would leave it searching for ever.
    bool ReadTokens(std::string_view text);
    bool CloseParenthesis();
    void DropEmptyTokens();

    /// Second pass.
    void Evaluate();
    void PushResult(double result);

    BasicCQueue<CalToken> rawQueue_;      // first pass, empty tokens included
    BasicCStack<CalToken> workStack_;     // operators of the first pass, operands of the second
    BasicCQueue<CalToken> postfixQueue_;  // first pass without the empty ones
    float lastResult_ = 0;
};

/// In a text in capitals, replaces every `old` (in capitals too) by `replacement` as Cal::Replace does.
/// Returns whether there was one.
bool Substitute(std::string& text, std::string_view old, std::string_view replacement);

}  // namespace kalvane
