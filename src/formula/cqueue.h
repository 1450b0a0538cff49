#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kalvane {

/// A ring of 101 slots for at most 100 entries that never fails: what does not fit is lost, and only the
/// message tells. `Entry` is a text or anything that can be made from one.
template <typename Entry>
class BasicCQueue {
  public:
    /// "Overflow" or "Empty" after the call that met it, until ShowEnd; "None" otherwise.
    std::string_view GetErrorMessage() const { return message_; }

    /// Lost when the queue is full.
    void EnQueue(const Entry& entry) {
        if (IsFull()) {
            message_ = "Overflow";
            return;
        }
        items_[static_cast<std::size_t>(tail_)] = entry;
        tail_ = Next(tail_);
    }

    /// The oldest entry, taken out; the entry of the empty text when there is none.
    Entry DeQueue() {
        if (IsEmpty()) {
            message_ = "Empty";
            return Entry("");
        }
        const auto taken = static_cast<std::size_t>(head_);
        head_ = Next(head_);
        return items_[taken];
    }

    bool IsEmpty() const { return head_ == tail_; }
    bool IsFull() const { return Next(tail_) == head_; }

    /// Content of the next free slot: an entry taken out long ago, or nothing yet. Resets the message.
    Entry ShowEnd() {
        message_ = "None";
        return items_[static_cast<std::size_t>(tail_)];
    }

  private:
    static constexpr std::int32_t kSlots = 101;

    static constexpr std::int32_t Next(std::int32_t slot) { return slot + 1 == kSlots ? 0 : slot + 1; }

    std::array<Entry, kSlots> items_;
    std::int32_t head_ = 0;
    std::int32_t tail_ = 0;
    std::string_view message_ = "None";
};

using CQueue = BasicCQueue<std::string>;

}  // namespace kalvane
