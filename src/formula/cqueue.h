#pragma once

#include "formula/cal_token.h"

namespace kalvane {

/// The evaluator's queue: a ring of 101 slots that holds 100 entries. An entry too many is lost, and an
/// empty queue answers with a kEmpty entry; the message tells of either until ShowEnd.
class CQueue {
  public:
    const char* GetErrorMessage() const { return message_; }
    void EnQueue(CalToken token) {
        if (IsFull()) {
            message_ = "Overflow";
            return;
        }
        items_[tail_] = token;
        tail_ = Next(tail_);
    }
    CalToken DeQueue() {
        if (IsEmpty()) {
            message_ = "Empty";
            return CalToken::Of(CalToken::kEmpty);
        }
        const CalToken token = items_[head_];
        head_ = Next(head_);
        return token;
    }
    bool IsEmpty() const { return head_ == tail_; }
    bool IsFull() const { return Next(tail_) == head_; }

    /// The slot that the next entry will take, as it stands.
    CalToken ShowEnd() {
        message_ = "None";
        return items_[tail_];
    }

  private:
    static constexpr int kSlots = 101;
    static constexpr int Next(int slot) { return slot + 1 == kSlots ? 0 : slot + 1; }

    CalToken items_[kSlots];  // not cleared: an entry is written before it is read, but for ShowEnd
    int head_ = 0;
    int tail_ = 0;
    const char* message_ = "None";
};

}  // namespace kalvane
