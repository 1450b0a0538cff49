#include "optimise/yh_array.h"

#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {

void YHArray::AddPiece(std::int16_t length) {
    if (records_.empty() || records_.back().length != length) {
        if (records_.size() == kMostRecords) throw NumericError::OutOfBounds();
        records_.push_back({length, 0, 0});
    }
    records_.back().count = Checked16(records_.back().count + 1);
}

}  // namespace kalvane
