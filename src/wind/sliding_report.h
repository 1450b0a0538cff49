#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "wind/form_texts.h"
#include "wind/sliding_check.h"

namespace kalvane {

/// The report's text (each line ended by CR LF) begins with the title in large letters. What follows, as far
/// as the body's length, stands in smaller ones. Lengths are in characters.
inline constexpr std::size_t kSlidingTitleLength = 16;
inline constexpr std::size_t kSlidingBodyLength = 10000;
inline constexpr float kSlidingTitlePoints = 24;
inline constexpr float kSlidingBodyPoints = 14;
inline constexpr const char* kSlidingFamily = "隶书";

/// The lines of the report on a sliding window. Sub-headings stand behind one tab, items behind two. The text
/// of the basis stands at the margin, line by line.
std::vector<std::string> SlidingReport(const FormTexts& texts, const SlidingNumbers& numbers);

}  // namespace kalvane
