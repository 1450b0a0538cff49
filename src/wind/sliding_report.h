#pragma once

#include <cstddef>
#include <string>

#include "wind/form_texts.h"
#include "wind/sliding_check.h"

namespace kalvane {

/// The report has its title in large letters: its first characters, counted with the line ends as two.
/// What follows, as far as the body's length, stands in smaller ones.
inline constexpr std::size_t kSlidingTitleLength = 16;
inline constexpr std::size_t kSlidingBodyLength = 10000;
inline constexpr float kSlidingTitlePoints = 24;
inline constexpr float kSlidingBodyPoints = 14;
inline constexpr const char* kSlidingFamily = "隶书";

/// The report on a sliding window. Each line ends in CR LF; sub-headings stand behind one tab, items behind
/// two. The text of the basis stands at the margin, line by line.
std::string SlidingReport(const FormTexts& texts, const SlidingNumbers& numbers);

}  // namespace kalvane
