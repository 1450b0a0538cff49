#include "optimise/piece_labels.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "optimise/fitting_text.h"
#include "optimise/pattern_text.h"

namespace kalvane {
namespace {

constexpr std::size_t kMostLabels = 1000000;
constexpr float kInset = 230;  // twips, 4 mm: what a printer may be off the label
constexpr PageFont kMaterialFont{12, true};
constexpr PageFont kLengthFont{22, true};
constexpr PageFont kNumberFont{9, false};

}  // namespace

std::vector<PieceLabel> PieceLabels(const std::vector<PlanRow>& plan) {
    std::vector<PieceLabel> labels;
    std::string material;
    std::int64_t bar = 0;
    for (const PlanRow& row : plan) {
        if (row.material != material) bar = 0;
        material = row.material;
        const std::vector<PatternPart> parts = ParsePattern(row.pattern);
        for (int bars = RoundToInt32(ParseNumber(row.count)); bars > 0; --bars) {
            ++bar;
            for (const PatternPart& part : parts) {
                if (labels.size() + static_cast<std::size_t>(part.count) > kMostLabels)
                    throw NumericError::Overflow();
                labels.insert(labels.end(), static_cast<std::size_t>(part.count),
                              {material, part.length, bar});
            }
        }
    }
    return labels;
}

void PaintLabels(PageTarget& target, const std::vector<PieceLabel>& labels) {
    constexpr std::size_t kPerSheet = std::size_t{kLabelColumns} * kLabelRows;
    const float width = target.Width() / kLabelColumns;
    const float height = target.Height() / kLabelRows;
    const std::string total = std::to_string(labels.size());
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (i > 0 && i % kPerSheet == 0) target.NewPage();
        const PieceLabel& label = labels[i];
        const std::size_t place = i % kPerSheet;
        const std::size_t row = place / kLabelColumns;
        const float left = static_cast<float>(place % kLabelColumns) * width + kInset;
        const float top = static_cast<float>(row) * height + kInset;
        const float bottom = top + height - 2 * kInset;
        const float room = width - 2 * kInset;

        SetFittingFont(target, label.material, kMaterialFont, room);
        target.DrawText(left, top, label.material);

        const std::string length = std::to_string(label.length) + " mm";
        target.SetFont(kLengthFont);
        target.DrawText(left, (top + bottom - target.TextHeight(length)) / 2, length);

        const std::string number = std::to_string(i + 1) + " / " + total;
        const std::string bar = "第 " + std::to_string(label.bar) + " 根";
        target.SetFont(kNumberFont);
        target.DrawText(left, bottom - target.TextHeight(number), number);
        target.DrawText(left + room - target.TextWidth(bar), bottom - target.TextHeight(bar), bar);
    }
    if (!labels.empty()) target.EndDocument();
}

}  // namespace kalvane
