#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kalvane {

/// A stack of 101 entries that never fails: what does not fit is lost, and an empty stack answers "NULL".
/// `Entry` is a text or anything that can be made from one.
template <typename Entry>
class BasicCStack {
  public:
    /// Ignored when the stack is full.
    void Push(const Entry& entry) {
        if (IsFull()) return;
        items_[static_cast<std::size_t>(++top_)] = entry;
    }

    /// The top entry, taken off; the entry of the text "NULL" when the stack is empty.
    Entry Pop() {
        Entry entry = Top();
        if (!IsEmpty()) --top_;
        return entry;
    }

    /// As Pop, with the entry left where it is.
    Entry Top() const { return IsEmpty() ? Entry("NULL") : items_[static_cast<std::size_t>(top_)]; }

    bool IsEmpty() const { return top_ == -1; }
    bool IsFull() const { return top_ == kLast; }

  private:
    static constexpr std::int32_t kLast = 100;

    std::array<Entry, kLast + 1> items_;
    std::int32_t top_ = -1;
};

using CStack = BasicCStack<std::string>;

}  // namespace kalvane
