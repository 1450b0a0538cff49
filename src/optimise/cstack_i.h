#pragma once

#include <cstdint>
#include <vector>

#include "optimise/yh_array.h"

namespace kalvane {

/// The pieces chosen for a bar so far, as running sums: each record adds one piece to the record below it.
class CStackI {
  public:
    struct Record {
        std::int16_t sum = 0;       ///< mm
        std::int16_t position = 0;  ///< position last considered
    };

    /// `capacity` is the most records held.
    explicit CStackI(std::int16_t capacity = kMostRecords) : capacity_(capacity) {}

    /// Ignored when the stack is full.
    void Push(Record record);

    /// The top record, taken off or not; all zero when the stack is empty.
    Record Pop();
    Record Top() const;

    bool IsEmpty() const { return records_.empty(); }
    bool IsFull() const { return records_.size() == static_cast<std::size_t>(capacity_); }
    void Clear() { records_.clear(); }

    /// The chosen pieces from the bottom up, ascending. Pieces of no length are left out, since the bottom
    /// record, a sum of 0, counts as one of them.
    YHArray SetToYHArray() const;

  private:
    std::int16_t capacity_;
    std::vector<Record> records_;
};

}  // namespace kalvane
