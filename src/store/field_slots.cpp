#include "store/field_slots.h"

namespace kalvane {

FieldSlots& SharedFieldSlots() {
    static FieldSlots slots;
    return slots;
}

}  // namespace kalvane
