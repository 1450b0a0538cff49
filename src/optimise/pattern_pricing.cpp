#include "optimise/pattern_pricing.h"

#include <algorithm>

namespace kalvane {

PatternPricing::PatternPricing(int stock, const std::vector<int>& widths, const std::vector<int>& most)
    : lengths_(widths.size()), row_(static_cast<std::size_t>(stock) + 1) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
        int left = most[i];
        for (int pieces = 1; left > 0; pieces *= 2) {
            const int taken = std::min(pieces, left);
            bundles_.push_back({i, taken, taken * widths[i]});
            left -= taken;
        }
    }
}

std::int64_t PatternPricing::Best(const std::vector<std::int64_t>& values, std::vector<double>& pattern) {
    best_.assign(row_, 0);
    taken_.assign(Cells(), 0);
    std::uint8_t* taken = taken_.data();
    for (const Bundle& bundle : bundles_) {
        const std::int64_t value = values[bundle.length] * bundle.pieces;
        const auto width = static_cast<std::size_t>(bundle.width);
        for (std::size_t room = row_; value > 0 && room-- > width;) {
            const std::int64_t with = best_[room - width] + value;
            if (with <= best_[room]) continue;
            best_[room] = with;
            taken[room] = 1;
        }
        taken += row_;
    }

    pattern.assign(lengths_, 0);
    std::size_t room = row_ - 1;
    for (std::size_t b = bundles_.size(); b-- > 0;) {
        if (taken_[b * row_ + room] == 0) continue;
        pattern[bundles_[b].length] += bundles_[b].pieces;
        room -= static_cast<std::size_t>(bundles_[b].width);
    }
    return best_.back();
}

}  // namespace kalvane
