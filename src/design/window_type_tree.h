#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

/// A node of the tree of window types. The tag's first character is the level: "1" a maker, "2" a series,
/// "3" a window type; the rest is the number of the row (see KeyKind and KeyId).
struct TypeNode {
    std::string name;
    std::string tag;
    std::vector<TypeNode> children;
};

/// Only a node of the third level is a window type.
bool IsWindowType(std::string_view tag);

/// Makers with their series and these with their window types. Throws StoreError.
std::vector<TypeNode> LoadWindowTypes(Connection& connection);

/// Reads the row of a window type to `slots` and returns its drawing's number. Throws StoreError when there
/// is no such window type or no drawing was chosen for it.
std::string DrawingOfWindowType(Connection& connection, std::string_view typeNumber, FieldSlots& slots);

}  // namespace kalvane
