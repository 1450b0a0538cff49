#pragma once

#include <cstddef>

#include "formula/cal_token.h"

namespace kalvane {

/// The evaluator's stack: 101 entries. A push on the full stack is lost, and an empty stack answers with a
/// kNull entry and stays empty.
class CStack {
  public:
    void Push(CalToken token) {
        if (!IsFull()) items_[++top_] = token;
    }
    CalToken Pop() {
        if (IsEmpty()) return CalToken::Of(CalToken::kNull);
        return items_[top_--];
    }
    CalToken Top() const { return IsEmpty() ? CalToken::Of(CalToken::kNull) : items_[top_]; }
    bool IsEmpty() const { return top_ == -1; }
    bool IsFull() const { return top_ == kCapacity - 1; }

  private:
    static constexpr int kCapacity = 101;
    CalToken items_[kCapacity];  // not cleared: an entry is written before it is read
    int top_ = -1;
};

}  // namespace kalvane
