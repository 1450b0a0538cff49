#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "optimise/ticker.h"

namespace kalvane {

/// Where the walk through the choices of pieces stops. A node of the walk is (position, sum): the pieces
/// up to the position are decided, those taken add up to the sum. From a node the next piece is taken, if
/// the bar has room for it, or passed by; without room the branch closes there, since later pieces are
/// longer. The walk stops at a closed branch whose sum has reached the goal, and it breaks off where sum
/// and next piece together leave 16 bits.
///
/// For every node the table knows how few further pieces must be taken to reach a stop. It is filled
/// from the last position back to the start. Only every n-th row is kept, n being the square root of the
/// number of pieces; the rows between are computed again when the reader reaches them.
class StopTable {
  public:
    /// More pieces than any bar may take.
    static constexpr std::uint8_t kNever = 100;

    /// `values` ascending, in mm, none above `stock`; it must outlive the table. A goal above the stock is
    /// never reached, so that only overflows stop the walk.
    StopTable(std::span<const std::int16_t> values, int stock, int goal, Ticker& ticker);

    /// Fewest further pieces from a node to a stop; kNever when there is none. To be read with positions
    /// that do not fall.
    std::uint8_t FewestPieces(std::size_t position, int sum);

  private:
    using Row = std::vector<std::uint8_t>;  // by sum, 0 to stock

    Row LastRow() const;
    void FillRow(std::size_t position, const Row& after, Row& row);
    void FillBlock(std::size_t block);

    std::span<const std::int16_t> values_;
    int stock_;
    int goal_;
    Ticker& ticker_;
    std::size_t blockSize_;
    std::vector<Row> blockEnds_;  // the row behind each block
    std::vector<Row> block_;      // rows of the block being read
    std::size_t blockIndex_ = 0;
};

}  // namespace kalvane
