#include "formula/cal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

struct Function {
    std::string_view name;
    char code;
};

constexpr std::array<Function, 7> kFunctions = {
    {{"SIN", 'E'}, {"COS", 'B'}, {"ATN", 'A'}, {"EXP", 'C'}, {"LOG", 'D'}, {"SQR", 'F'}, {"TAN", 'G'}}};

constexpr bool IsFunction(char c) {
    return c >= 'A' && c <= 'G';
}

bool IsSum(CalToken token) {
    return token.Operation() == '+' || token.Operation() == '-';
}

bool IsProduct(CalToken token) {
    return token.Operation() == '*' || token.Operation() == '/';
}

// The formulas in use were adjusted to this value, not to the true ratio.
constexpr double kPi = 3.14;

double Radians(double degrees) {
    return degrees / 180 * kPi;
}

double Apply(char function, double x) {
    switch (function) {
        case 'A':
            return std::atan(x) / kPi * 180;
        case 'B':
            return std::cos(Radians(x));
        case 'C':
            return std::exp(x);
        case 'D':
            return std::log(x);
        case 'E':
            return std::sin(Radians(x));
        case 'F':
            return std::sqrt(x);
        default:
            return std::tan(Radians(x));
    }
}

double Apply(char operation, double left, double right) {
    switch (operation) {
        case '+':
            return left + right;
        case '-':
            return left - right;
        case '*':
            return left * right;
        default:
            return left / right;
    }
}

constexpr bool IsNumberPart(char c) {
    return (c >= '0' && c <= '9') || c == '.';
}

/// Bytes after the first one of a character outside ASCII.
constexpr bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

bool IsTooLong(std::string_view text) {
    constexpr std::size_t kMostBytesPerCharacter = 4;
    return text.size() > Cal::kMostCharacters &&
           (text.size() > Cal::kMostCharacters * kMostBytesPerCharacter ||
            CharCount(text) > Cal::kMostCharacters);
}

/// Replaces each function name, with all behind it up to the next "(", by the function's code. Empty when
/// a name has no "(" behind it.
std::string FoldFunctions(std::string text) {
    const auto isLetter = [](char c) { return c >= 'A' && c <= 'Z'; };
    if (std::none_of(text.begin(), text.end(), isLetter)) return text;
    for (const Function& function : kFunctions) {
        for (auto name = text.find(function.name); name != std::string::npos;
             name = text.find(function.name)) {
            const auto parenthesis = text.find('(', name);
            if (parenthesis == std::string::npos) return {};
            text.replace(name, parenthesis + 1 - name, 1, function.code);
        }
    }
    return text;
}

}  // namespace

bool Substitute(std::string& text, std::string_view old, std::string_view replacement) {
    auto place = text.find(old);
    if (place == std::string::npos || text.empty()) return false;
    if (old.empty()) {
        throw FormulaError("有一个标注没有名称（值为“" + std::string(replacement) + "”），公式“" + text +
                           "”无法计算。请改正这个标注。");
    }
    if (UpperCase(replacement).find(old) != std::string::npos) {
        throw FormulaError("标注“" + std::string(old) + "”的值“" + std::string(replacement) +
                           "”含有标注名本身，公式“" + text + "”无法计算。请改正这个值。");
    }
    do {
        text.replace(place, old.size(), replacement);
        // A replacement that is no longer than the name comes to an end by itself.
        if (replacement.size() > old.size() && IsTooLong(text)) {
            throw FormulaError("标注“" + std::string(old) + "”的值“" + std::string(replacement) +
                               "”使公式超过 " + std::to_string(Cal::kMostCharacters) +
                               " 个字符，无法计算。请改正这个值。");
        }
        // Left of the place there was no other one, so the next one reaches at least into it.
        place = text.find(old, place - std::min(place, old.size() - 1));
    } while (place != std::string::npos);
    return true;
}

std::string Cal::Replace(std::string_view text, std::string_view old, std::string_view replacement) {
    std::string result = UpperCase(text);
    Substitute(result, UpperCase(old), replacement);
    return result;
}

std::string Cal::Replace1(std::string_view text, std::string_view old, std::string_view replacement) {
    std::string result = UpperCase(text);
    if (result.empty()) return result;
    if (old.empty()) throw FormulaError("查找内容不能为空！");
    const std::string sought = UpperCase(old);
    for (auto place = result.find(sought); place != std::string::npos;
         place = result.find(sought, place + replacement.size())) {
        result.replace(place, sought.size(), replacement);
    }
    return result;
}

float Cal::CalExpress(std::string_view formula) {
    if (IsTooLong(formula)) {
        throw FormulaError("公式超过 " + std::to_string(kMostCharacters) + " 个字符，无法计算。");
    }
    // The quantity of most rows is a bare number. With nothing left over it is its own value.
    if (!formula.empty() && workStack_.IsEmpty() && IsShortWholeNumber(formula)) {
        return lastResult_ = static_cast<float>(CalToken(formula).Value());
    }
    std::string text = FoldFunctions(UpperCase(formula));
    std::erase(text, ' ');  // a blank ends nothing, not even a number
    text += ')';
    if (!ReadTokens(text)) {
        while (!rawQueue_.IsEmpty()) rawQueue_.DeQueue();
        throw FormulaError("公式“" + std::string(formula) + "”的右括号多于左括号，无法计算。");
    }
    DropEmptyTokens();
    Evaluate();
    const double result = workStack_.Pop().Value();
    if (std::fabs(result) <= static_cast<double>(std::numeric_limits<float>::max())) {
        lastResult_ = static_cast<float>(result);
    }
    return lastResult_;
}

bool Cal::ReadTokens(std::string_view text) {
    workStack_.Push(CalToken('('));
    std::size_t number = 0;  // where the digits before the present place begin
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (IsNumberPart(c)) continue;
        rawQueue_.EnQueue(CalToken(text.substr(number, i - number)));
        while (i + 1 < text.size() && IsContinuation(text[i + 1])) ++i;
        number = i + 1;
        if (c == '+' || c == '-') {
            while (IsSum(workStack_.Top()) || IsProduct(workStack_.Top()))
                rawQueue_.EnQueue(workStack_.Pop());
            workStack_.Push(CalToken(c));
        } else if (c == '*' || c == '/') {
            while (IsProduct(workStack_.Top())) rawQueue_.EnQueue(workStack_.Pop());
            workStack_.Push(CalToken(c));
        } else if (c == '(' || IsFunction(c)) {
            workStack_.Push(CalToken(c));
        } else if (c == ')') {
            if (!CloseParenthesis()) return false;
        }
    }
    return true;
}

bool Cal::CloseParenthesis() {
    while (!workStack_.IsEmpty()) {
        const CalToken token = workStack_.Pop();
        if (token.Operation() == '(') return true;
        rawQueue_.EnQueue(token);
        if (IsFunction(token.Operation())) return true;
    }
    return false;
}

void Cal::DropEmptyTokens() {
    while (!rawQueue_.IsEmpty()) {
        const CalToken token = rawQueue_.DeQueue();
        if (!token.IsNothing()) postfixQueue_.EnQueue(token);
    }
}

void Cal::Evaluate() {
    while (!postfixQueue_.IsEmpty()) {
        const CalToken token = postfixQueue_.DeQueue();
        if (token.IsNumber()) {
            workStack_.Push(token);
        } else if (IsSum(token) || IsProduct(token)) {
            const double right = workStack_.Pop().Value();
            const double left = workStack_.Pop().Value();
            if (std::isfinite(left) && std::isfinite(right)) {
                PushResult(Apply(token.Operation(), left, right));
            }
        } else if (IsFunction(token.Operation())) {
            const double x = workStack_.Pop().Value();
            if (std::isfinite(x)) PushResult(Apply(token.Operation(), x));
        }
    }
}

void Cal::PushResult(double result) {
    if (std::isfinite(result)) workStack_.Push(CalToken(CutTo15Digits(result)));
}

}  // namespace kalvane
