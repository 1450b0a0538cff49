#include "optimise/pattern_master.h"

namespace kalvane {
namespace {
constexpr double kTiny = 1e-9;
}  // namespace

PatternMaster::PatternMaster(std::span<const double> demand, std::span<const double> first)
    : size_(demand.size()), inverse_(size_ * size_), amounts_(size_), costs_(size_, 1.0), prices_(size_) {
    for (std::size_t i = 0; i < size_; ++i) {
        Inverse(i, i) = 1 / first[i];
        amounts_[i] = demand[i] / first[i];
    }
    Price();
}

double PatternMaster::Bars() const {
    double bars = 0;
    for (std::size_t row = 0; row < size_; ++row) bars += costs_[row] * amounts_[row];
    return bars;
}

bool PatternMaster::Enter(std::span<const double> pattern) {
    return Pivot(pattern, 1);
}

bool PatternMaster::EnterSurplus(std::size_t i) {
    std::vector<double> column(size_);
    column[i] = -1;
    return Pivot(column, 0);
}

bool PatternMaster::Pivot(std::span<const double> column, double cost) {
    // The column in terms of the basis, and the basic pattern that it drives out first.
    std::vector<double> direction(size_);
    std::size_t leaving = size_;
    for (std::size_t row = 0; row < size_; ++row) {
        for (std::size_t i = 0; i < size_; ++i) direction[row] += Inverse(row, i) * column[i];
        if (direction[row] <= kTiny) continue;
        if (leaving == size_ || amounts_[row] * direction[leaving] < amounts_[leaving] * direction[row]) {
            leaving = row;
        }
    }
    if (leaving == size_) return false;

    const double amount = amounts_[leaving] / direction[leaving];
    for (std::size_t i = 0; i < size_; ++i) Inverse(leaving, i) /= direction[leaving];
    for (std::size_t row = 0; row < size_; ++row) {
        if (row == leaving || direction[row] == 0) continue;
        amounts_[row] -= amount * direction[row];
        for (std::size_t i = 0; i < size_; ++i) Inverse(row, i) -= direction[row] * Inverse(leaving, i);
    }
    amounts_[leaving] = amount;
    costs_[leaving] = cost;
    Price();
    return true;
}

void PatternMaster::Price() {
    prices_.assign(size_, 0);
    for (std::size_t row = 0; row < size_; ++row) {
        if (costs_[row] == 0) continue;
        for (std::size_t i = 0; i < size_; ++i) prices_[i] += costs_[row] * Inverse(row, i);
    }
}

}  // namespace kalvane
