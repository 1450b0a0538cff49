#include "optimise/pattern_text.h"

#include <algorithm>

#include "numeric/number.h"

namespace kalvane {

void AppendPieces(std::string& pattern, std::int16_t length, std::int16_t count,
                  const OptimiseSettings& settings) {
    pattern += std::to_string(Checked16(length - 2 * settings.CKK - settings.LTC));
    if (count > 1) pattern += "*" + std::to_string(count);
    pattern += "+";
}

std::string FinishedPattern(std::string pattern) {
    if (!pattern.empty()) pattern.pop_back();
    return pattern;
}

std::string PatternText(const YHArray& pattern, const OptimiseSettings& settings) {
    std::string text;
    for (const YHRecord& record : pattern) AppendPieces(text, record.length, record.count, settings);
    return FinishedPattern(text);
}

std::vector<PatternPart> ParsePattern(std::string_view text) {
    std::vector<PatternPart> parts;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find('+'));
        text.remove_prefix(std::min(part.size() + 1, text.size()));
        const std::size_t star = std::min(part.find('*'), part.size());
        const double count = star < part.size() ? ParseNumber(part.substr(star + 1)) : 1;
        parts.push_back({RoundToInt32(ParseNumber(part.substr(0, star))), RoundToInt32(count)});
    }
    return parts;
}

}  // namespace kalvane
