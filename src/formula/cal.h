#pragma once

#include <string>
#include <string_view>

#include "formula/cqueue.h"
#include "formula/cstack.h"

namespace kalvane {

/// Evaluates formula texts. A two-pass machine: the shunting-yard method turns the text into postfix order,
/// and a stack evaluates that. It knows numbers, + - * / with the usual precedence, parentheses and seven
/// functions (SIN COS ATN EXP LOG SQR TAN, angles in degrees with 3.14 for pi), and no unary operator.
///
/// There is no wrong text: what the machine cannot read it passes over, an absent operand reads as 0, and an
/// operation without a result leaves nothing behind. Every operation's result is cut to 15 digits, the
/// formula's to a 32-bit float. The one exception: a text that would keep the machine busy for ever (a ")"
/// too many, a label whose value holds its own name) throws FormulaError.
///
/// What is left on the stack at the end stays for the next formula on the same object and may serve it as
/// absent operands.
class Cal {
  public:
    /// `text` in capitals with every `oldText` (in either case) replaced by `newText` as it stands; each
    /// replacement starts the search from the first character again. Throws FormulaError when that would
    /// never end, and when the text grows beyond 32767 characters.
    std::string Replace(std::string_view text, std::string_view oldText, std::string_view newText) const;

    /// As Replace, in one pass over the text as it stood: what was put in is not searched.
    std::string Replace1(std::string_view text, std::string_view oldText, std::string_view newText) const;

    /// The value of a formula. Throws FormulaError for a text that has no end.
    float CalExpress(std::string_view formula);

  private:
    void ToPostfix(std::string_view folded);
    void Operator(char character);
    void CloseParenthesis(std::string_view folded);
    void Evaluate();
    void Operate(char mark);
    void Apply(char function);

    CQueue rawQueue_;
    CStack workStack_;
    CQueue postfixQueue_;
    float lastResult_ = 0;
};

/// Cal::Replace on a text that is already at hand.
void ReplaceInPlace(std::string& text, std::string_view oldText, std::string_view newText);

}  // namespace kalvane
