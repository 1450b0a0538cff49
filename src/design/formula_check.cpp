#include "design/formula_check.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "design/formula_reading.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::size_t kQuantity = 2;  // of profiles, steels and fittings
constexpr std::size_t kPanelCount = 1;
constexpr std::size_t kPanelLength = 2;
constexpr std::size_t kPanelWidth = 3;
constexpr std::size_t kBarLength = 3;

FindingKind KindOf(FormulaFault fault) {
    switch (fault) {
        case FormulaFault::NeverReturns:
            return FindingKind::NeverReturns;
        case FormulaFault::NoLabel:
            return FindingKind::NoLabel;
        case FormulaFault::Misread:
            break;
    }
    return FindingKind::Misread;
}

bool IsCount(const std::string& text) {
    return IsNumeric(text) &&
           std::fabs(Val(text)) <= static_cast<double>(std::numeric_limits<std::int32_t>::max());
}

/// Why the store would refuse a text in a column; empty when it would not.
std::string WhyNotSaved(const FormulaTable& table, std::size_t column, const std::string& text) {
    const std::size_t longest = table.longest[column];
    if (longest == 0) return IsCount(text) ? std::string() : "“" + text + "”不是整数，无法保存";
    if (text.find('\'') != std::string::npos) return "含有单引号“'”，无法保存";
    if (CharCount(text) > longest) return "超过 " + std::to_string(longest) + " 个字符，无法保存";
    return {};
}

/// Collects what the pieces of one row come to.
class PieceCheck {
  public:
    PieceCheck(const TestValues& values, MaterialClass materialClass, std::size_t row,
               const FormulaTexts& texts, std::vector<FormulaFinding>& findings)
        : values_(values), materialClass_(materialClass), row_(row), texts_(texts), findings_(findings) {}

    /// The value of a column; nothing when it cannot be worked out, which is another finding.
    std::optional<double> Value(std::size_t column) const {
        try {
            if (const std::optional<float> value = values_.Try(texts_[column])) return double{*value};
        } catch (const FormulaError&) {
            return std::nullopt;
        }
        return std::nullopt;
    }

    /// Notes a size that is none.
    void Size(std::size_t column) const {
        const std::optional<double> size = Value(column);
        if (size && *size <= 0) Note(column, "算出来是 " + ShortText(static_cast<float>(*size)));
    }
    /// Notes a number of pieces that is none, after it has been made whole.
    void Count(std::size_t column, bool roundsDown) const {
        const std::optional<double> count = Value(column);
        if (count && (roundsDown ? std::floor(*count) : std::nearbyint(*count)) <= 0) {
            Note(column, "算出来是 " + ShortText(static_cast<float>(*count)) + "，不足一件");
        }
    }
    void Note(std::size_t column, const std::string& text) const {
        findings_.push_back({FindingKind::BadPiece, materialClass_, row_, column, text});
    }

  private:
    const TestValues& values_;
    MaterialClass materialClass_;
    std::size_t row_;
    const FormulaTexts& texts_;
    std::vector<FormulaFinding>& findings_;
};

void CheckPanel(const PieceCheck& check, const TestValues& values) {
    check.Count(kPanelCount, false);
    check.Size(kPanelLength);
    check.Size(kPanelWidth);
    const std::optional<double> length = check.Value(kPanelLength);
    const std::optional<double> width = check.Value(kPanelWidth);
    const std::optional<double> b = values.Of("B");
    const std::optional<double> h = values.Of("H");
    if (!length || !width || !b || !h) return;
    const bool fits =
        std::max(*length, *width) <= std::max(*b, *h) && std::min(*length, *width) <= std::min(*b, *h);
    if (fits) return;
    check.Note(kPanelLength, ShortText(static_cast<float>(*length)) + "×" +
                                 ShortText(static_cast<float>(*width)) + "，比洞口 " + ShortText(*b) + "×" +
                                 ShortText(*h) + " 大");
}

}  // namespace

std::vector<FormulaFinding> FindingsOfRow(MaterialClass materialClass, std::size_t row,
                                          const FormulaTexts& texts, const CatalogueCodes& codes,
                                          const std::vector<std::string>& labels) {
    const FormulaTable& table = FormulaTableOf(materialClass);
    std::vector<FormulaFinding> findings;
    for (std::size_t column = 0; column < texts.size(); ++column) {
        const std::string& text = texts[column];
        const auto note = [&](FindingKind kind, const std::string& what) {
            findings.push_back({kind, materialClass, row, column, what});
        };
        const std::string refusal = WhyNotSaved(table, column, text);
        if (!refusal.empty()) note(FindingKind::NotSaved, refusal);
        if (column == table.codeColumn && !codes.Has(materialClass, text)) {
            note(FindingKind::NoCode, "材料库中没有“" + text + "”");
        }
        if (!table.isFormula[column]) continue;
        for (const FormulaComplaint& complaint : ReadFormula(text, labels)) {
            note(KindOf(complaint.fault), complaint.text);
        }
    }
    return findings;
}

std::vector<FormulaFinding> FindingsOfLists(const FormulaLists& lists, const CatalogueCodes& codes,
                                            const std::vector<std::string>& labels) {
    std::vector<FormulaFinding> all;
    for (const MaterialClass materialClass : kListClasses) {
        for (std::size_t row = 0; row < lists[materialClass].size(); ++row) {
            const auto found = FindingsOfRow(materialClass, row, lists[materialClass][row], codes, labels);
            all.insert(all.end(), found.begin(), found.end());
        }
    }
    return all;
}

std::vector<FormulaFinding> PiecesThatCannotBe(const FormulaLists& lists, const TestValues& values) {
    std::vector<FormulaFinding> findings;
    for (const MaterialClass materialClass : kListClasses) {
        for (std::size_t row = 0; row < lists[materialClass].size(); ++row) {
            const PieceCheck check(values, materialClass, row, lists[materialClass][row], findings);
            if (materialClass == MaterialClass::Panel) {
                CheckPanel(check, values);
                continue;
            }
            // Quantities of bars are rounded down, those of fittings to the nearest whole number.
            const bool isFitting = materialClass == MaterialClass::Fitting;
            check.Count(kQuantity, !isFitting);
            if (!isFitting) check.Size(kBarLength);
        }
    }
    return findings;
}

std::string FindingLine(const FormulaFinding& finding) {
    const FormulaTable& table = FormulaTableOf(finding.materialClass);
    return std::string(table.caption) + "第" + std::to_string(finding.row + 1) + "行 " +
           table.columns[finding.column] + "：" + finding.text;
}

std::string LinesOf(const std::vector<FormulaFinding>& findings, FindingKind kind, std::size_t most) {
    std::string lines;
    std::size_t count = 0;
    for (const FormulaFinding& finding : findings) {
        if (finding.kind != kind) continue;
        if (++count <= most) lines += (lines.empty() ? "" : "\n") + FindingLine(finding);
    }
    return count > most ? lines + "\n……共 " + std::to_string(count) + " 处" : lines;
}

}  // namespace kalvane
