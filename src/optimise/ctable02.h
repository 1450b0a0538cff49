#pragma once

#include <cstdint>
#include <vector>

#include "platform/notice.h"

namespace kalvane {

/// Lengths still to be cut with their counts, longest first: a doubly linked list laid out in an array, so
/// that taking a length out moves nothing.
class CTable02 {
  public:
    /// What FindJustFor returns beside a position.
    static constexpr std::int16_t kNothingFits = 0;
    static constexpr std::int16_t kBadData = -1;

    /// Makes a chain of positions 1 to `n`, to be filled with AddNew.
    void Create(std::int16_t n);

    std::int16_t Count() const { return count_; }
    /// Sets the number of lengths; 0 drops the rest of the list.
    void Count(std::int16_t count) { count_ = count; }

    /// Stores a length (mm, with the piece allowance) and its pieces at a position of the chain.
    void AddNew(std::int16_t value, std::int16_t count, std::int16_t position);

    void Remove(std::int16_t position);

    /// Position of the longest length not above `rest`, or kNothingFits. When the shortest length of all is
    /// above `stock` or negative, reports that and returns kBadData.
    std::int16_t FindJustFor(std::int16_t rest, std::int16_t stock, Notice& notice) const;

    void Retrive(std::int16_t& value, std::int16_t& count, std::int16_t position) const;
    void Update(std::int16_t count, std::int16_t position);
    std::int16_t GetHead() const { return head_; }

  private:
    struct Node {
        std::int16_t value = 0;
        std::int16_t count = 0;
        std::int16_t next = 0;  // next shorter
        std::int16_t prev = 0;  // next longer
    };

    Node& At(std::int16_t position);
    const Node& At(std::int16_t position) const;

    std::vector<Node> nodes_;  // positions from 1; the node at 0 stays unused
    std::int16_t head_ = 0;
    std::int16_t tail_ = 0;
    std::int16_t count_ = 0;
};

}  // namespace kalvane
