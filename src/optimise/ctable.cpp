#include "optimise/ctable.h"

#include "numeric/assertion.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

/// The middle of two positions; a half is rounded to the even neighbour.
std::int16_t Middle(std::int16_t low, std::int16_t high) {
    return RoundToInt16((static_cast<double>(low) + high) / 2);
}

}  // namespace

std::int16_t CTable::Locate(std::int16_t value) const {
    std::int16_t low = 1;
    std::int16_t high = count_;
    std::int16_t middle = Middle(0, count_);
    while (middle >= 1) {
        if (GetItemValue(middle) > value) {
            high = static_cast<std::int16_t>(middle - 1);
            middle = Middle(low, high);
        }
        if (GetItemValue(middle) < value) {
            low = static_cast<std::int16_t>(middle + 1);
            middle = Middle(low, high);
        }
        // With no room left the middle may be one below the value, just where the walk down would end.
        if (GetItemValue(middle) == value || low >= middle) break;
    }
    while (middle >= 1 && GetItemValue(middle) == value) --middle;
    return static_cast<std::int16_t>(middle + 1);
}

void CTable::AddItem(std::int16_t value) {
    count_ = Checked16(count_ + 1);
    const auto slot = static_cast<std::size_t>(count_ - 1);
    if (slot == values_.size()) {
        values_.push_back(value);
        positions_.push_back(static_cast<std::int16_t>(slot));
    } else {
        values_[slot] = value;
        positions_[slot] = static_cast<std::int16_t>(slot);
    }
}

std::int16_t CTable::GetValueCount(std::int16_t value) const {
    const int first = Locate(value);
    int position = first;
    while (position <= count_ && GetItemValue(static_cast<std::int16_t>(position)) == value) ++position;
    return static_cast<std::int16_t>(position - first);
}

void CTable::DeleteList(const YHArray& pattern) {
    if (pattern.YHArrayCount() == 0) return;
    std::int64_t total = 0;
    for (const YHRecord& record : pattern) total += record.count;
    const std::int16_t end = Checked16(count_ - total);

    std::size_t record = 0;
    int shift = 0;  // pieces taken out so far
    const auto last = static_cast<std::size_t>(pattern.YHArrayCount());
    const auto isRecord = [&](int position) {
        return record < last && GetItemValue(static_cast<std::int16_t>(position)) == pattern[record].length;
    };
    for (int p = Locate(pattern[0].length); p <= end;) {
        if (isRecord(p)) shift += pattern[record++].count;
        KALVANE_ASSERT(p + shift <= count_);
        positions_[static_cast<std::size_t>(p - 1)] = positions_[static_cast<std::size_t>(p + shift - 1)];
        // What came down to p may be the next length to take out.
        if (!isRecord(p)) ++p;
    }
    count_ = end;
}

std::int16_t CTable::GetItem(std::int16_t position) const {
    KALVANE_ASSERT(position >= 1 && position <= count_);
    return positions_[static_cast<std::size_t>(position - 1)];
}

std::int16_t CTable::GetItemValue(std::int16_t position) const {
    if (position < 1 || position > count_) return -1;
    return values_[static_cast<std::size_t>(GetItem(position))];
}

std::int16_t CTable::GetMaxValue() const {
    return count_ == 0 ? std::int16_t{0} : GetItemValue(count_);
}

std::int16_t CTable::GetMinValue() const {
    return count_ == 0 ? std::int16_t{0} : GetItemValue(1);
}

std::int16_t CTable::GetTotalValue(std::int16_t limit) const {
    std::int16_t sum = 0;
    for (int position = 1; position <= count_; ++position) {
        sum = Checked16(sum + GetItemValue(static_cast<std::int16_t>(position)));
        if (sum >= limit) return limit;
    }
    return sum;
}

void CTable::ClearAll() {
    count_ = 0;
}

}  // namespace kalvane
