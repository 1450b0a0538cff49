#pragma once

#include <array>
#include <cstdint>
#include <utility>

#include "numeric/assertion.h"

namespace kalvane {

/// The items of one kind in a drawing: a fixed array and the index of its last used place, -1 when empty.
template <typename Item>
class PrimitiveList {
  public:
    static constexpr std::int16_t kLastPlace = 360;

    std::int16_t LastIndex() const { return last_; }
    int Count() const { return last_ + 1; }
    bool Empty() const { return last_ < 0; }

    const Item& operator[](int index) const {
        KALVANE_ASSERT(index >= 0 && index <= last_);
        return items_[static_cast<std::size_t>(index)];
    }
    const Item* begin() const { return items_.data(); }
    const Item* end() const { return items_.data() + Count(); }

    /// False when the list is full; the item is not stored then.
    bool Add(Item item) {
        if (last_ >= kLastPlace) return false;
        ++last_;
        items_[static_cast<std::size_t>(last_)] = std::move(item);
        return true;
    }

    /// Takes an item out. The last one takes its place: files and rows follow this order.
    void DeleteAt(int index) {
        KALVANE_ASSERT(index >= 0 && index <= last_);
        const auto last = static_cast<std::size_t>(last_);
        if (index < last_) items_[static_cast<std::size_t>(index)] = std::move(items_[last]);
        --last_;
    }

    /// Takes out every item for which `hit` holds. A place is tested again after a deletion, since it
    /// holds another item then.
    template <typename Hit>
    void DeleteWhere(Hit hit) {
        for (int i = 0; i <= last_;) {
            if (hit(items_[static_cast<std::size_t>(i)])) {
                DeleteAt(i);
            } else {
                ++i;
            }
        }
    }

    void Clear() { last_ = -1; }

  private:
    std::array<Item, kLastPlace + 1> items_{};
    std::int16_t last_ = -1;
};

}  // namespace kalvane
