#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "numeric/assertion.h"

namespace kalvane {

/// Sixteen text slots that carry one row, or a dialog's result, between routines. Overwritten by the next
/// lookup or dialog: read them at once.
class FieldSlots {
  public:
    static constexpr std::size_t kCount = 16;

    std::string& operator[](std::size_t index) {
        KALVANE_ASSERT(index < kCount);
        return slots_[index];
    }
    const std::string& operator[](std::size_t index) const {
        KALVANE_ASSERT(index < kCount);
        return slots_[index];
    }

  private:
    std::array<std::string, kCount> slots_;
};

}  // namespace kalvane
