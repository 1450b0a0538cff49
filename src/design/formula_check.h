#pragma once

#include <string>
#include <vector>

#include "design/catalogue_codes.h"
#include "design/formula_lists.h"
#include "design/test_values.h"

namespace kalvane {

// What is wrong with the formula rows of a window type, or looks so. Nothing is refused for it.

enum class FindingKind {
    NotSaved,      ///< the store will refuse the row, and the rows of the type before the save are lost
    NoCode,        ///< the catalogue has no such material
    NeverReturns,  ///< a formula that cannot be evaluated
    NoLabel,       ///< a name in a formula that the drawing has not
    Misread,       ///< something else in a formula that the evaluator takes differently
    BadPiece       ///< a piece of no size, or glass larger than its opening
};

struct FormulaFinding {
    FindingKind kind;
    MaterialClass materialClass;
    std::size_t row;     ///< in its list, from 0
    std::size_t column;  ///< from 0
    std::string text;    ///< a plain sentence
};

/// What can be seen in the texts of one row, in the order of its columns.
std::vector<FormulaFinding> FindingsOfRow(MaterialClass materialClass, std::size_t row,
                                          const FormulaTexts& texts, const CatalogueCodes& codes,
                                          const std::vector<std::string>& labels);

/// The same of all rows.
std::vector<FormulaFinding> FindingsOfLists(const FormulaLists& lists, const CatalogueCodes& codes,
                                            const std::vector<std::string>& labels);

/// The pieces that the test values give: none and negative ones, and panels that do not fit into the opening
/// of B by H whichever way they are turned.
std::vector<FormulaFinding> PiecesThatCannotBe(const FormulaLists& lists, const TestValues& values);

/// "门窗型材第3行 规格：材料库中没有…" on one line.
std::string FindingLine(const FormulaFinding& finding);

/// One line for each finding of a kind, the first `most` of them; empty when there is none.
std::string LinesOf(const std::vector<FormulaFinding>& findings, FindingKind kind, std::size_t most);

}  // namespace kalvane
