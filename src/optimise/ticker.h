#pragma once

#include <cstddef>
#include <functional>
#include <utility>

namespace kalvane {

/// Calls back about every millisecond of a long search, measured by the work done.
class Ticker {
  public:
    /// `tick` may be empty.
    explicit Ticker(std::function<void()> tick) : tick_(std::move(tick)) {}

    /// Notes `cells` table cells of work.
    void Add(std::size_t cells) {
        done_ += cells;
        if (done_ < kCellsPerTick) return;
        done_ = 0;
        if (tick_) tick_();
    }

  private:
    static constexpr std::size_t kCellsPerTick = std::size_t{1} << 22;

    std::function<void()> tick_;
    std::size_t done_ = 0;
};

}  // namespace kalvane
