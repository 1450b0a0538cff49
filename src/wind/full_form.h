#pragma once

#include <string>

#include "wind/form_texts.h"

namespace kalvane {

/// The boxes of FrmMainFY01, site and load of the full check.
FormBoxes FullBaseBoxes();
/// The boxes of frmFY01, its window.
FormBoxes FullDetailBoxes();

/// What stands on both screens.
struct FullTexts {
    FormTexts base{FullBaseBoxes()};
    FormTexts detail{FullDetailBoxes()};
};

/// The first list without a choice, or box without a text, that the load needs.
std::optional<Refusal> FullRefusal(const FormTexts& base);

/// The shorter edge of the glass divided by the longer; empty while one of the boxes is empty, or when the
/// longer edge is 0.
std::string EdgeRatio(std::string_view width, std::string_view length);

}  // namespace kalvane
