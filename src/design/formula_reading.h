#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

// What the evaluator will not make of a formula what its writer meant. It accepts every text, so that nothing
// here refuses one.

enum class FormulaFault {
    NeverReturns,  ///< a spare ")": the formula cannot be evaluated at all
    NoLabel,       ///< a name that is no label of the drawing
    Misread        ///< anything else that counts as nothing, or as something else
};

struct FormulaComplaint {
    FormulaFault fault;
    std::string text;  ///< a plain sentence for the designer
};

/// Complaints about a formula over a drawing with these labels; none for an empty one. Names are compared as
/// the evaluator does: anywhere in the text, the longest label first, whatever the case.
std::vector<FormulaComplaint> ReadFormula(std::string_view formula, const std::vector<std::string>& labels);

/// Those of the labels that are in the formula, each once.
std::vector<std::string> LabelsIn(std::string_view formula, const std::vector<std::string>& labels);

}  // namespace kalvane
