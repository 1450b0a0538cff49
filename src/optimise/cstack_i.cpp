#include "optimise/cstack_i.h"

namespace kalvane {

void CStackI::Push(Record record) {
    if (!IsFull()) records_.push_back(record);
}

CStackI::Record CStackI::Pop() {
    const Record top = Top();
    if (!IsEmpty()) records_.pop_back();
    return top;
}

CStackI::Record CStackI::Top() const {
    return IsEmpty() ? Record{} : records_.back();
}

YHArray CStackI::SetToYHArray() const {
    YHArray pattern;
    std::int16_t below = 0;
    for (const Record& record : records_) {
        pattern.AddPiece(static_cast<std::int16_t>(record.sum - below));
        below = record.sum;
    }
    if (pattern.YHArrayCount() > 0 && pattern[0].length == 0) pattern.RemoveFirst();
    return pattern;
}

}  // namespace kalvane
