#pragma once

#include <cstdint>
#include <vector>

#include "optimise/yh_array.h"

namespace kalvane {

/// Piece lengths in millimetres, one entry per piece. The caller adds them in ascending order and every
/// reading routine relies on it. Deleting rewrites only the array of positions: position p names the slot
/// of the p-th piece among the values, which stay where they are.
class CTable {
  public:
    /// First position that holds `value`, by halving the table; 1 when all values are above it.
    std::int16_t Locate(std::int16_t value) const;

    /// Appends. Positions are 16-bit: the 32768th entry throws NumericError (overflow).
    void AddItem(std::int16_t value);

    /// How many entries equal `value`.
    std::int16_t GetValueCount(std::int16_t value) const;

    std::int16_t GetCount() const { return count_; }

    /// Takes a pattern's pieces out, each record `count` times. The records are in ascending order of
    /// length and the table holds the pieces they name.
    void DeleteList(const YHArray& pattern);

    /// Value slot at a position from 1 to the count.
    std::int16_t GetItem(std::int16_t position) const;

    /// Value at a position; -1 below 1 and beyond the count.
    std::int16_t GetItemValue(std::int16_t position) const;

    /// Value at the last and at the first position, 0 when empty.
    std::int16_t GetMaxValue() const;
    std::int16_t GetMinValue() const;

    /// Sum of the values, or `limit` as soon as the sum from the first position on reaches it; 0 when
    /// empty. Throws NumericError when the sum leaves 16 bits on the way.
    std::int16_t GetTotalValue(std::int16_t limit) const;

    void ClearAll();

  private:
    std::vector<std::int16_t> values_;     // by slot, from 0
    std::vector<std::int16_t> positions_;  // slot of each position, from 0
    std::int16_t count_ = 0;
};

}  // namespace kalvane
