#pragma once

#include "wind/form_texts.h"

namespace kalvane {

/// The boxes of frmFY, the check of a sliding window, in the order of the screen.
FormBoxes SlidingBoxes();

/// The six layouts: two or three sashes; plain, with a top light, or with a top light that is divided by
/// mullions. Any FormTexts here and below holds SlidingBoxes().
struct SlidingLayout {
    int sashes;
    bool hasTopLight;
    bool hasMullion;
};
SlidingLayout LayoutOf(const FormTexts& texts);

/// The first box without a text that the check needs.
std::optional<Refusal> SlidingRefusal(const FormTexts& texts);

/// Puts the inertia of the chosen steel into its box.
void TakeSteelInertia(FormTexts& texts);

}  // namespace kalvane
