#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/primitive_list.h"
#include "drawing/primitives.h"
#include "drawing/window_label.h"

namespace kalvane {

/// A label of a project window or of a member of a composite: a dimension of its drawing. All texts, as they
/// are shown.
struct LabelRow {
    std::string name;   ///< as in the drawing and the formulas
    std::string value;  ///< as typed; "0" until then
    std::string x;      ///< position in drawing units
    std::string y;
};

/// The labels of a new window, one for each text of the drawing, with the value "0".
std::vector<LabelRow> LabelsOfDrawing(const PrimitiveList<TextItem>& texts);

/// The labels as they are painted over the drawing.
std::vector<WindowLabel> PaintedLabels(std::span<const LabelRow> labels);

/// Which of a window's sizes a label sets: B and H, in either case, are its overall width and height.
enum class MakingSize { None, Width, Height };
MakingSize SizeSetBy(std::string_view labelName);

}  // namespace kalvane
