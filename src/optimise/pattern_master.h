#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kalvane {

/// The linear programme of cutting patterns: the least number of bars, fractions allowed, whose patterns
/// together give at least the demanded pieces of every length. Patterns come one at a time; after each the
/// programme returns to its optimum by one step of the revised simplex method with an explicit
/// inverse of the basis (Gilmore and Gomory, A linear programming approach to the cutting-stock problem,
/// Operations Research 9, 1961).
///
/// Everything here is floating point and may be slightly wrong; who needs certainty checks what the prices
/// prove.
class PatternMaster {
  public:
    /// Pieces of each length, and as first patterns bars with `first[i]` pieces of length i alone, above 0.
    PatternMaster(std::span<const double> demand, std::span<const double> first);

    /// What a piece of each length is worth, in bars: the dual values.
    const std::vector<double>& Prices() const { return prices_; }
    /// Bars that the best mix of the patterns so far takes.
    double Bars() const;

    /// Takes a pattern, pieces of each length, into the mix. False when it changes nothing.
    bool Enter(std::span<const double> pattern);
    /// Lets more pieces of length i be cut than are demanded; of use when its price is below zero.
    bool EnterSurplus(std::size_t i);

  private:
    bool Pivot(std::span<const double> column, double cost);
    double& Inverse(std::size_t row, std::size_t column) { return inverse_[row * size_ + column]; }
    void Price();

    std::size_t size_;
    std::vector<double> inverse_;  // of the basis, by row
    std::vector<double> amounts_;  // of the basic patterns
    std::vector<double> costs_;    // 1 bar, or 0 for a surplus
    std::vector<double> prices_;
};

}  // namespace kalvane
