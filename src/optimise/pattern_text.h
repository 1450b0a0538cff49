#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "optimise/yh_array.h"
#include "session/optimise_settings.h"

namespace kalvane {

/// Adds pieces of one length to a pattern text: the length as cut, "*" and the count if it is above 1, "+".
/// `length` is in mm with the piece allowance, which is taken off again. Throws NumericError when the
/// length as cut leaves 16 bits.
void AppendPieces(std::string& pattern, std::int16_t length, std::int16_t count,
                  const OptimiseSettings& settings);

/// The text without its last "+".
std::string FinishedPattern(std::string pattern);

/// Text of a whole pattern, such as 800*3+1500+2000; empty for no records.
std::string PatternText(const YHArray& pattern, const OptimiseSettings& settings);

/// Pieces of one length in a pattern text: the length as cut, mm, and how many of it.
struct PatternPart {
    int length = 0;
    int count = 0;
};

/// The parts of a pattern text in their order. Throws NumericError when the text is no pattern.
std::vector<PatternPart> ParsePattern(std::string_view text);

}  // namespace kalvane
