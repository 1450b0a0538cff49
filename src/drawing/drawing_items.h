#pragma once

#include <vector>

#include "drawing/primitives.h"

namespace kalvane {

/// What a drawing holds, apart from the drawing: a state to go back to, to compare with, or to keep.
struct DrawingItems {
    std::vector<LineItem> lines;
    std::vector<RectangleItem> rectangles;
    std::vector<DimensionItem> dimensions;
    std::vector<ArrowItem> arrows;
    std::vector<TextItem> strings;
    std::vector<ArcItem> arcs;

    bool Empty() const {
        return lines.empty() && rectangles.empty() && dimensions.empty() && arrows.empty() &&
               strings.empty() && arcs.empty();
    }
    friend bool operator==(const DrawingItems&, const DrawingItems&) = default;
};

}  // namespace kalvane
