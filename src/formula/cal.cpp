#include "formula/cal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "numeric/number.h"
#include "numeric/text.h"
#include "platform/error.h"

namespace kalvane {
namespace {

/// Positions in a formula are 16-bit numbers.
constexpr std::size_t kLongestText = 32767;

/// The constant that all formulas were written against.
constexpr double kPi = 3.14;

struct FunctionName {
    std::string_view name;
    char code;
};

/// In the order in which names are looked for.
constexpr FunctionName kFunctions[] = {{"SIN", 'E'}, {"COS", 'B'}, {"ATN", 'A'}, {"EXP", 'C'},
                                       {"LOG", 'D'}, {"SQR", 'F'}, {"TAN", 'G'}};

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}
constexpr bool IsFunctionCode(char c) {
    return c >= 'A' && c <= 'G';
}

void CheckLength(std::string_view text) {
    if (text.size() > kLongestText) throw FormulaError("公式太长，超过 32767 个字符，无法计算。");
}

/// Puts one-letter codes in place of function names; each swallows everything up to its opening
/// parenthesis. A name without one empties the text.
void FoldFunctions(std::string& text) {
    for (const FunctionName& function : kFunctions) {
        for (std::size_t at = text.find(function.name); at != std::string::npos;
             at = text.find(function.name)) {
            const std::size_t open = text.find('(', at);
            if (open == std::string::npos) {
                text.clear();
                return;
            }
            text.replace(at, open - at + 1, 1, function.code);
        }
    }
}

/// The token of a number buffer: digits and points, without blanks.
CalToken NumberToken(std::string_view buffer) {
    if (buffer.empty()) return CalToken::Of(CalToken::kEmpty);
    const auto points = std::count(buffer.begin(), buffer.end(), '.');
    if (points > 1 || buffer == ".") return CalToken::Of(CalToken::kMalformed);
    double value = 0;
    const auto result = std::from_chars(buffer.data(), buffer.data() + buffer.size(), value);
    // Hundreds of digits: no operation with such an operand has a result.
    if (result.ec == std::errc::result_out_of_range) value = HUGE_VAL;
    return CalToken::Number(value);
}

}  // namespace

void ReplaceInPlace(std::string& text, std::string_view oldText, std::string_view newText) {
    text = UpperCase(text);
    const std::string old = UpperCase(oldText);
    std::size_t at = text.find(old);
    if (at == std::string::npos || text.empty()) return;
    if (old.empty()) throw FormulaError("标注名为空，公式无法计算。");
    if (UpperCase(newText).find(old) != std::string::npos) {
        throw FormulaError("标注“" + std::string(oldText) + "”的值“" + std::string(newText) +
                           "”含有标注名本身，公式无法计算。");
    }
    while (at != std::string::npos) {
        text.replace(at, old.size(), newText);
        CheckLength(text);
        // Nothing before this place held `old`, so a search from the front would come here as well.
        at = text.find(old, at - std::min(at, old.size() - 1));
    }
}

std::string Cal::Replace(std::string_view text, std::string_view oldText, std::string_view newText) const {
    std::string result(text);
    ReplaceInPlace(result, oldText, newText);
    return result;
}

std::string Cal::Replace1(std::string_view text, std::string_view oldText, std::string_view newText) const {
    const std::string capitals = UpperCase(text);
    const std::string old = UpperCase(oldText);
    if (old.empty()) throw FormulaError("查找内容不能为空！");
    std::string result;
    for (std::size_t at = 0; at < capitals.size();) {
        if (capitals.compare(at, old.size(), old) == 0) {
            result += newText;
            at += old.size();
        } else {
            result += capitals[at++];
        }
    }
    CheckLength(result);
    return result;
}

float Cal::CalExpress(std::string_view formula) {
    CheckLength(formula);
    std::string folded = UpperCase(formula);
    FoldFunctions(folded);
    folded += ')';
    ToPostfix(folded);
    while (!rawQueue_.IsEmpty()) {
        const CalToken token = rawQueue_.DeQueue();
        if (token.mark != CalToken::kEmpty) postfixQueue_.EnQueue(token);
    }
    Evaluate();
    const double value = workStack_.Pop().number;
    // A value beyond a 32-bit float is not stored, and the result before it stands.
    if (std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max())) {
        lastResult_ = static_cast<float>(value);
    }
    return lastResult_;
}

void Cal::ToPostfix(std::string_view folded) {
    workStack_.Push(CalToken::Of('('));
    std::string number;
    for (const char character : folded) {
        // Blanks vanish without ending a number, and a character of several bytes counts once.
        if (character == ' ' || IsContinuation(character)) continue;
        if (IsDigit(character) || character == '.') {
            number += character;
            continue;
        }
        rawQueue_.EnQueue(NumberToken(number));
        number.clear();
        if (character == ')') {
            CloseParenthesis(folded);
        } else if (character == '(' || IsFunctionCode(character)) {
            workStack_.Push(CalToken::Of(character));
        } else {
            Operator(character);
        }
    }
}

void Cal::Operator(char character) {
    const bool isSum = character == '+' || character == '-';
    const bool isProduct = character == '*' || character == '/';
    if (!isSum && !isProduct) return;
    for (char top = workStack_.Top().mark; top == '*' || top == '/' || (isSum && (top == '+' || top == '-'));
         top = workStack_.Top().mark) {
        rawQueue_.EnQueue(workStack_.Pop());
    }
    workStack_.Push(CalToken::Of(character));
}

void Cal::CloseParenthesis(std::string_view folded) {
    for (;;) {
        const CalToken token = workStack_.Pop();
        if (token.mark == CalToken::kNull) {
            // What was queued so far must not reach the next formula.
            while (!rawQueue_.IsEmpty()) rawQueue_.DeQueue();
            folded.remove_suffix(1);
            throw FormulaError("公式“" + std::string(folded) + "”的右括号多于左括号，无法计算。");
        }
        if (token.mark != '(') rawQueue_.EnQueue(token);
        if (token.mark == '(' || IsFunctionCode(token.mark)) return;
    }
}

void Cal::Evaluate() {
    while (!postfixQueue_.IsEmpty()) {
        const CalToken token = postfixQueue_.DeQueue();
        if (token.IsNumber()) {
            workStack_.Push(token);
        } else if (IsFunctionCode(token.mark)) {
            Apply(token.mark);
        } else if (token.mark != CalToken::kMalformed) {
            Operate(token.mark);
        }
    }
}

void Cal::Operate(char mark) {
    const double right = workStack_.Pop().number;
    const double left = workStack_.Pop().number;
    double value = 0;
    switch (mark) {
        case '+':
            value = left + right;
            break;
        case '-':
            value = left - right;
            break;
        case '*':
            value = left * right;
            break;
        default:
            value = left / right;
            break;
    }
    // An infinite operand is a text that no number holds: nothing made of it is a result.
    if (std::isfinite(value) && std::isfinite(right)) workStack_.Push(CalToken::Number(CutTo15Digits(value)));
}

void Cal::Apply(char function) {
    const double x = workStack_.Pop().number;
    double value = 0;
    switch (function) {
        case 'E':
            value = std::sin(x / 180 * kPi);
            break;
        case 'B':
            value = std::cos(x / 180 * kPi);
            break;
        case 'A':
            value = std::atan(x) / kPi * 180;
            break;
        case 'C':
            value = std::exp(x);
            break;
        case 'D':
            value = std::log(x);
            break;
        case 'F':
            value = std::sqrt(x);
            break;
        default:
            value = std::tan(x / 180 * kPi);
            break;
    }
    if (std::isfinite(value) && std::isfinite(x)) workStack_.Push(CalToken::Number(CutTo15Digits(value)));
}

}  // namespace kalvane
