#pragma once

#include <array>
#include <string>
#include <variant>

#include "session/optimise_settings.h"

namespace kalvane {

/// Most pieces that one run could take; the option dialog holds 允许优化材料数量 below it.
inline constexpr int kMostPieces = 50000;

/// The six boxes of the option dialog, in the order in which they are checked.
enum class OptionField { CLC, LTC, CKK, COUNT, YHBL, NODES };
inline constexpr int kOptionFieldCount = 6;

/// Texts of the boxes, by OptionField.
using OptionTexts = std::array<std::string, kOptionFieldCount>;

/// A refused entry: the box to go back to and what to say, under the title "提示".
struct OptionFailure {
    OptionField field;
    std::string message;
};

/// The texts that show `settings`.
OptionTexts OptionTextsOf(const OptimiseSettings& settings);

/// Checks the boxes in turn; the first that fails is the answer. CLC, LTC, COUNT and NODES round to the
/// nearest integer (ties to even), CKK is rounded down. A text that is no number is refused, but for NODES,
/// where it counts as 0; so is a number beyond the width of its setting.
std::variant<OptimiseSettings, OptionFailure> AcceptOptions(const OptionTexts& texts);

}  // namespace kalvane
