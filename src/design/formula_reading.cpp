#include "design/formula_reading.h"

#include <algorithm>
#include <array>
#include <functional>

#include "design/formula_edits.h"
#include "formula/cal.h"
#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

// In a masked formula the first byte of a label and all its others.
constexpr char kLabelStart = '\x01';
constexpr char kLabelRest = '\x02';

constexpr std::array<std::string_view, 7> kFunctions = {"SIN", "COS", "ATN", "EXP", "LOG", "SQR", "TAN"};
constexpr std::string_view kOperators = "+-*/() ";
/// What an input method writes for operators and brackets.
constexpr std::string_view kWideSigns = "（）＋－×÷＊／，。、【】［］";

bool IsDigit(char c) {
    return (c >= '0' && c <= '9') || c == '.';
}
bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}
bool IsLabel(char c) {
    return c == kLabelStart || c == kLabelRest;
}

/// The formula in capitals with its labels masked; places stay what they are in the formula.
std::string Masked(
    std::string_view formula, std::vector<std::string> labels,
    const std::function<void(const std::string& label)>& found = [](const std::string&) {}) {
    std::string text = UpperCase(formula);
    std::stable_sort(labels.begin(), labels.end(), [](const std::string& a, const std::string& b) {
        return CharCount(Trim(a)) > CharCount(Trim(b));
    });
    for (const std::string& label : labels) {
        const std::string sought = UpperCase(Trim(label));
        auto place = sought.empty() ? std::string::npos : text.find(sought);
        if (place != std::string::npos) found(label);
        for (; place != std::string::npos; place = text.find(sought, place)) {
            text.replace(place, sought.size(), sought.size(), kLabelRest);
            text[place] = kLabelStart;
        }
    }
    return text;
}

/// The character of a text that begins at a byte.
std::string_view CharacterAt(std::string_view text, std::size_t place) {
    return LeftChars(text.substr(place), 1);
}

/// True for a character that stands alone: no part of a name or number.
bool IsSign(std::string_view character) {
    const char c = character[0];
    if (static_cast<unsigned char>(c) >= 0x80) return kWideSigns.find(character) != std::string_view::npos;
    return !IsDigit(c) && !IsLetter(c) && !IsLabel(c);
}

bool IsOneLabel(std::string_view run) {
    return run[0] == kLabelStart &&
           std::all_of(run.begin() + 1, run.end(), [](char c) { return c == kLabelRest; });
}

/// True when a function's name begins the run.
bool IsFunction(std::string_view run) {
    return std::any_of(kFunctions.begin(), kFunctions.end(),
                       [run](std::string_view function) { return run.starts_with(function); });
}

/// Asks the evaluator itself, with a number in place of each label.
bool NeverReturns(std::string masked) {
    std::replace_if(masked.begin(), masked.end(), IsLabel, '1');
    try {
        Cal().CalExpress(masked);
        return false;
    } catch (const FormulaError&) {
        return true;
    }
}

std::string Quoted(std::string_view text) {
    return "“" + std::string(text) + "”";
}

/// The complaint about a run of letters, digits and labels; empty when it is what the evaluator makes of it.
/// `opens` when a bracket opens behind it.
FormulaComplaint ComplaintAbout(std::string_view run, std::string_view written, bool opens) {
    if (std::all_of(run.begin(), run.end(), IsDigit)) {
        if (std::count(run.begin(), run.end(), '.') < 2) return {};
        return {FormulaFault::Misread, Quoted(written) + "不是数，会被略去"};
    }
    if (IsOneLabel(run)) return {};
    if (IsFunction(run)) {
        if (opens) return {};
        return {FormulaFault::Misread, "函数" + Quoted(written) + "后面没有“(”，整条公式按 0 计算"};
    }
    if (IsDigit(run[0]) && std::none_of(run.begin(), run.end(), IsLetter)) {
        return {FormulaFault::Misread, Quoted(written) + "中间缺少运算符，代入后数字会连在一起"};
    }
    std::string_view name = written;
    while (!name.empty() && IsDigit(name[0])) name.remove_prefix(1);
    const bool isMacro = std::any_of(kMacroCodes.begin(), kMacroCodes.end(), [name](const MacroCode& macro) {
        return EqualIgnoringCase(name, macro.code);
    });
    return {FormulaFault::NoLabel,
            isMacro ? "宏代码" + Quoted(name) + "还没有替换成数值" : "图中没有标注" + Quoted(name)};
}

}  // namespace

std::vector<FormulaComplaint> ReadFormula(std::string_view formula, const std::vector<std::string>& labels) {
    std::vector<FormulaComplaint> complaints;
    const std::string masked = Masked(formula, labels);
    if (NeverReturns(masked)) {
        complaints.push_back({FormulaFault::NeverReturns, "右括号多于左括号，无法计算"});
    }
    for (std::size_t place = 0; place < masked.size();) {
        const std::string_view character = CharacterAt(masked, place);
        if (IsSign(character)) {
            if (kOperators.find(character) == std::string_view::npos) {
                complaints.push_back(
                    {FormulaFault::Misread, Quoted(character) + "不是公式的符号，只会把两边隔开"});
            }
            place += character.size();
            continue;
        }
        std::size_t end = place;
        while (end < masked.size() && !IsSign(CharacterAt(masked, end))) {
            end += CharacterAt(masked, end).size();
        }
        const auto next = masked.find_first_not_of(' ', end);
        const bool opens = next != std::string::npos && masked[next] == '(';
        FormulaComplaint complaint = ComplaintAbout(std::string_view(masked).substr(place, end - place),
                                                    formula.substr(place, end - place), opens);
        if (!complaint.text.empty()) complaints.push_back(std::move(complaint));
        place = end;
    }
    return complaints;
}

std::vector<std::string> LabelsIn(std::string_view formula, const std::vector<std::string>& labels) {
    std::vector<std::string> used;
    Masked(formula, labels, [&used](const std::string& label) { used.push_back(label); });
    return used;
}

}  // namespace kalvane
