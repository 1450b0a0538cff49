#include "optimise/pattern_text.h"

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

}  // namespace kalvane
