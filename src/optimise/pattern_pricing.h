#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kalvane {

/// Finds the most valuable pattern of one bar: a knapsack of whole millimetres and whole values, so that
/// the answer is exact. Pieces of one length are limited; they are packed into bundles of 1, 2, 4, ... so
/// that each bundle is taken or left.
class PatternPricing {
  public:
    /// `widths` in mm from 1 to `stock`; `most` pieces of each, from 1 on, on one bar.
    PatternPricing(int stock, const std::vector<int>& widths, const std::vector<int>& most);

    /// Table cells that one search fills: its time is proportional to them.
    std::size_t Cells() const { return bundles_.size() * row_; }

    /// Value of the best pattern, whose pieces are left in `pattern`; `values` are not negative and their
    /// sum over any bar stays below 2^62.
    std::int64_t Best(const std::vector<std::int64_t>& values, std::vector<double>& pattern);

  private:
    struct Bundle {
        std::size_t length;  // index
        int pieces;
        int width;  // of all its pieces
    };

    std::size_t lengths_;
    std::size_t row_;  // cells for bars of 0 to `stock` mm
    std::vector<Bundle> bundles_;
    std::vector<std::int64_t> best_;   // by room
    std::vector<std::uint8_t> taken_;  // by bundle and room
};

}  // namespace kalvane
