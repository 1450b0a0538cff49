#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "optimise/plan.h"
#include "page/page_target.h"

namespace kalvane {

/// The texts on the label of one piece.
struct PieceLabel {
    std::string material;  ///< 规格
    int length = 0;        ///< as cut, mm
    std::int64_t bar = 0;  ///< number of its bar among the material's bars, from 1
};

/// One label per piece in the order of cutting: bar by bar as 切割图 numbers them, and along the bar. Throws
/// NumericError when there are more pieces than a plan can have sensibly (a million).
std::vector<PieceLabel> PieceLabels(const std::vector<PlanRow>& plan);

/// Labels to a row and rows to a sheet, which has no margins.
inline constexpr int kLabelColumns = 3;
inline constexpr int kLabelRows = 8;

/// Paints the labels on sheets of 3 x 8, each with its number in the list.
void PaintLabels(PageTarget& target, const std::vector<PieceLabel>& labels);

}  // namespace kalvane
