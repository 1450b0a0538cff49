#include "project/labels.h"

#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {

std::vector<LabelRow> LabelsOfDrawing(const PrimitiveList<TextItem>& texts) {
    std::vector<LabelRow> labels;
    for (const TextItem& item : texts) {
        labels.push_back({item.text, "0", ShortText(item.at.x), ShortText(item.at.y)});
    }
    return labels;
}

std::vector<WindowLabel> PaintedLabels(std::span<const LabelRow> labels) {
    std::vector<WindowLabel> painted;
    for (const LabelRow& label : labels) painted.push_back({Val(label.x), Val(label.y), label.value});
    return painted;
}

MakingSize SizeSetBy(std::string_view labelName) {
    const std::string_view name = Trim(labelName);
    if (EqualIgnoringCase(name, "B")) return MakingSize::Width;
    if (EqualIgnoringCase(name, "H")) return MakingSize::Height;
    return MakingSize::None;
}

}  // namespace kalvane
