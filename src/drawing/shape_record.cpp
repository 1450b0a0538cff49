#include "drawing/shape_record.h"

namespace kalvane {

void ShapeRecord::Clear() {
    strokes_.clear();
    texts_.clear();
    dots_.clear();
}

}  // namespace kalvane
