#include "optimise/stop_table.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kalvane {
namespace {

constexpr int kMost16 = std::numeric_limits<std::int16_t>::max();

}  // namespace

StopTable::StopTable(std::span<const std::int16_t> values, int stock, int goal, Ticker& ticker)
    : values_(values),
      stock_(stock),
      goal_(goal),
      ticker_(ticker),
      blockSize_(static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(values.size() + 1))))) {
    const std::size_t rows = values.size() + 1;
    const std::size_t blocks = (rows + blockSize_ - 1) / blockSize_;
    blockEnds_.resize(blocks);
    blockEnds_.back() = LastRow();
    block_.assign(blockSize_, LastRow());
    for (std::size_t block = blocks; block-- > 0;) {
        FillBlock(block);
        if (block > 0) blockEnds_[block - 1] = block_.front();
    }
}

std::uint8_t StopTable::FewestPieces(std::size_t position, int sum) {
    const std::size_t block = position / blockSize_;
    if (block != blockIndex_) FillBlock(block);
    return block_[position % blockSize_][static_cast<std::size_t>(sum)];
}

/// Behind the last piece every branch is closed.
StopTable::Row StopTable::LastRow() const {
    Row row(static_cast<std::size_t>(stock_) + 1, kNever);
    if (goal_ <= stock_) std::fill(row.begin() + goal_, row.end(), std::uint8_t{0});
    return row;
}

void StopTable::FillRow(std::size_t position, const Row& after, Row& row) {
    const int value = values_[position];  // of the piece decided next
    const int room = stock_ - value;      // highest sum that the piece still fits
    const std::uint8_t* passed = after.data();
    const std::uint8_t* taken = after.data() + value;
    std::uint8_t* fewest = row.data();
    for (int sum = 0; sum <= room; ++sum) {
        fewest[sum] = std::min(passed[sum], static_cast<std::uint8_t>(taken[sum] + 1));
    }
    for (int sum = room + 1; sum <= stock_; ++sum) fewest[sum] = sum >= goal_ ? std::uint8_t{0} : kNever;
    for (int sum = std::max(room, kMost16 - value) + 1; sum <= stock_; ++sum) fewest[sum] = 0;
    ticker_.Add(row.size());
}

void StopTable::FillBlock(std::size_t block) {
    const std::size_t first = block * blockSize_;
    const std::size_t rows = std::min(blockSize_, values_.size() + 1 - first);
    const Row* after = &blockEnds_[block];
    for (std::size_t i = rows; i-- > 0;) {
        const std::size_t position = first + i;
        if (position == values_.size()) {
            block_[i] = *after;
        } else {
            FillRow(position, *after, block_[i]);
        }
        after = &block_[i];
    }
    blockIndex_ = block;
}

}  // namespace kalvane
