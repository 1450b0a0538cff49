#pragma once

#include "store/field_slots.h"

namespace kalvane {

/// The slots all screens share.
FieldSlots& SharedFieldSlots();

}  // namespace kalvane
