#include "session/shared_slots.h"

namespace kalvane {

FieldSlots& SharedFieldSlots() {
    static FieldSlots slots;
    return slots;
}

}  // namespace kalvane
