#include "optimise/bar_bound.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace kalvane {
namespace {

/// Whole price of one bar: fine enough that cutting prices down to it loses nothing that rounding the bound
/// up does not make good, coarse enough that the price of 2^31 pieces stays within 64 bits.
constexpr std::int64_t kBarPrice = std::int64_t{1} << 30;

/// Largest table of a step, some 30 ms, and most lengths, whose basis is a square matrix.
constexpr std::size_t kMostCells = std::size_t{1} << 25;
constexpr std::size_t kMostLengths = 1000;

/// Far more steps than the programme takes, unless it cycles.
constexpr int kStepsPerLength = 60;

constexpr double kTiny = 1e-7;

std::int64_t DividedUp(std::int64_t dividend, std::int64_t divisor) {
    return (dividend + divisor - 1) / divisor;
}

std::vector<BarDemand> Merged(const std::vector<BarDemand>& demand) {
    std::map<int, std::int64_t> byWidth;
    for (const BarDemand& piece : demand) byWidth[piece.width] += piece.count;
    std::vector<BarDemand> merged;
    for (const auto& [width, count] : byWidth) {
        if (count > 0) merged.push_back({width, count});
    }
    return merged;
}

}  // namespace

BarBound::BarBound(int stock, const std::vector<BarDemand>& demand) {
    const std::vector<BarDemand> merged = Merged(demand);
    if (merged.empty() || merged.front().width <= 0 || merged.back().width > stock) return;
    std::int64_t total = 0;
    std::int64_t pieces = 0;
    for (const BarDemand& piece : merged) {
        total += piece.width * piece.count;
        pieces += piece.count;
    }
    bars_ = DividedUp(total, stock);
    if (merged.size() <= kMostLengths && pieces < (std::int64_t{1} << 31)) StartProgramme(stock, merged);
}

void BarBound::StartProgramme(int stock, const std::vector<BarDemand>& merged) {
    std::vector<std::int64_t> demand;
    std::vector<double> counts;
    std::vector<double> first;
    std::vector<int> widths;
    std::vector<int> most;
    for (const BarDemand& piece : merged) {
        demand.push_back(piece.count);
        counts.push_back(static_cast<double>(piece.count));
        widths.push_back(piece.width);
        most.push_back(static_cast<int>(std::min<std::int64_t>(piece.count, stock / piece.width)));
        first.push_back(most.back());
    }
    PatternPricing pricing(stock, widths, most);
    if (pricing.Cells() > kMostCells) return;
    stepsLeft_ = kStepsPerLength * static_cast<int>(merged.size());
    programme_.emplace(Programme{std::move(demand), PatternMaster(counts, first), std::move(pricing)});
}

bool BarBound::Step() {
    if (!programme_) return false;
    auto& [demand, master, pricing] = *programme_;
    const std::vector<double>& prices = master.Prices();
    const auto cheapest = std::min_element(prices.begin(), prices.end());

    // Prices below zero count as zero, which the bound allows.
    std::vector<std::int64_t> values(prices.size());
    std::int64_t worth = 0;
    for (std::size_t i = 0; i < prices.size(); ++i) {
        values[i] =
            static_cast<std::int64_t>(std::clamp(prices[i], 0.0, 1.0) * static_cast<double>(kBarPrice));
        worth += values[i] * demand[i];
    }
    std::vector<double> pattern;
    const std::int64_t bestWorth = pricing.Best(values, pattern);
    if (bestWorth > 0) bars_ = std::max(bars_, DividedUp(worth, bestWorth));

    // The programme's optimum lies between the bound and the mix at hand.
    const bool isClosed = static_cast<double>(bars_) >= master.Bars() - kTiny;
    const bool hasBetterPattern =
        static_cast<double>(bestWorth) > static_cast<double>(kBarPrice) * (1 + kTiny);
    bool moved = false;
    if (!isClosed && --stepsLeft_ > 0) {
        if (*cheapest < -kTiny) {
            moved = master.EnterSurplus(static_cast<std::size_t>(cheapest - prices.begin()));
        } else if (hasBetterPattern) {
            moved = master.Enter(pattern);
        }
    }
    if (!moved) {
        isOptimal_ = isClosed || (!hasBetterPattern && *cheapest >= -kTiny);
        programme_.reset();
    }
    return moved;
}

}  // namespace kalvane
