#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "wind/full_check.h"
#include "wind/full_form.h"

namespace kalvane {

inline constexpr std::size_t kFullBaseLines = 24;
inline constexpr std::size_t kFullLines = 217;

/// The full report, kFullLines lines without line ends: load, glass, screws, frame.
std::vector<std::string> FullReport(const FullTexts& texts, const FullLoad& load, const FullNumbers& numbers);

}  // namespace kalvane
