#pragma once

#include <cstdint>
#include <vector>

namespace kalvane {

/// One length of a cutting pattern.
struct YHRecord {
    std::int16_t length = 0;     ///< mm, with the piece allowance
    std::int16_t count = 0;      ///< pieces of it on one bar
    std::int16_t available = 0;  ///< pieces of it still to be cut
};

/// Most records of a pattern, and most entries of the stack it is found with.
inline constexpr std::int16_t kMostRecords = 100;

/// A cutting pattern: its lengths in ascending order.
class YHArray {
  public:
    /// Adds one piece not shorter than the ones before: to the last record when the length is the same,
    /// else as a new one. Throws NumericError (out of bounds) when there is no room for a record.
    void AddPiece(std::int16_t length);

    void RemoveFirst() { records_.erase(records_.begin()); }
    void Clear() { records_.clear(); }

    std::int16_t YHArrayCount() const { return static_cast<std::int16_t>(records_.size()); }
    YHRecord& operator[](std::size_t index) { return records_[index]; }
    const YHRecord& operator[](std::size_t index) const { return records_[index]; }
    auto begin() { return records_.begin(); }
    auto end() { return records_.end(); }
    auto begin() const { return records_.begin(); }
    auto end() const { return records_.end(); }

  private:
    std::vector<YHRecord> records_;
};

}  // namespace kalvane
