#pragma once

#include <cmath>
#include <limits>
#include <string>

#include "formula/cqueue.h"
#include "formula/cstack.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane::test {

/// The evaluator read word for word: every entry is a text, every operation goes through one. Slow and
/// plain, to hold the real machine against. `endless` is set instead of looping for ever.
class LiteralCal {
  public:
    bool endless = false;

    float CalExpress(const std::string& formula) {
        std::string text = Fold(UpperCase(formula)) + ")";
        CQueue raw;
        stack_.Push("(");
        std::string number;
        for (const char c : text) {
            if (c == ' ' || (c & 0xC0) == 0x80) continue;  // a character of several bytes counts once
            if ((c >= '0' && c <= '9') || c == '.') {
                number += c;
                continue;
            }
            raw.EnQueue(number);
            number.clear();
            const std::string entry(1, c);
            if (c == '+' || c == '-') {
                while (stack_.Top() == "*" || stack_.Top() == "/" || stack_.Top() == "+" ||
                       stack_.Top() == "-")
                    raw.EnQueue(stack_.Pop());
                stack_.Push(entry);
            } else if (c == '*' || c == '/') {
                while (stack_.Top() == "*" || stack_.Top() == "/") raw.EnQueue(stack_.Pop());
                stack_.Push(entry);
            } else if (c == '(' || IsCode(entry)) {
                stack_.Push(entry);
            } else if (c == ')') {
                for (;;) {
                    if (stack_.IsEmpty()) {
                        endless = true;
                        return 0;
                    }
                    const std::string popped = stack_.Pop();
                    if (popped != "(") raw.EnQueue(popped);
                    if (popped == "(" || IsCode(popped)) break;
                }
            }
        }
        while (!raw.IsEmpty()) {
            const std::string token = raw.DeQueue();
            if (!token.empty()) Take(token);
        }
        const double value = Val(stack_.Pop());
        if (std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max())) {
            last_ = static_cast<float>(value);
        }
        return last_;
    }

  private:
    static bool IsCode(const std::string& entry) {
        return entry.size() == 1 && entry[0] >= 'A' && entry[0] <= 'G';
    }

    static std::string Fold(std::string text) {
        for (const std::string name :
             {"SINE", "COSB", "ATNA", "EXPC", "LOGD", "SQRF", "TANG"}) {  // and its code
            for (std::size_t at; (at = text.find(name.substr(0, 3))) != std::string::npos;) {
                const std::size_t open = text.find('(', at);
                if (open == std::string::npos) return "";
                text = text.substr(0, at) + name[3] + text.substr(open + 1);
            }
        }
        return text;
    }

    void Take(const std::string& token) {
        if (IsNumeric(token)) {
            stack_.Push(token);
            return;
        }
        double value = std::numeric_limits<double>::quiet_NaN();
        if (std::string("+-*/").find(token) != std::string::npos) {
            const double right = Val(stack_.Pop());
            const double left = Val(stack_.Pop());
            value = token == "+"   ? left + right
                    : token == "-" ? left - right
                    : token == "*" ? left * right
                                   : left / right;
        } else if (IsCode(token)) {
            const double x = Val(stack_.Pop());
            if (token == "A") value = std::atan(x) / 3.14 * 180;
            if (token == "B") value = std::cos(x / 180 * 3.14);
            if (token == "C") value = std::exp(x);
            if (token == "D") value = std::log(x);
            if (token == "E") value = std::sin(x / 180 * 3.14);
            if (token == "F") value = std::sqrt(x);
            if (token == "G") value = std::tan(x / 180 * 3.14);
        }
        if (std::isfinite(value)) stack_.Push(" " + ShortText(value));
    }

    CStack stack_;
    float last_ = 0;
};

}  // namespace kalvane::test
