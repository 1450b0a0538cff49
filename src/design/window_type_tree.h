#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/field_slots.h"
#include "store/tree_node.h"

namespace kalvane {

// A node's kind is its level: "1" a maker, "2" a series, "3" a window type.

inline constexpr const char* kWindowMakerKind = "1";
inline constexpr const char* kWindowSeriesKind = "2";
/// Kind of the leaves.
inline constexpr const char* kWindowTypeKind = "3";

/// Only a node of the third level is a window type.
bool IsWindowType(std::string_view tag);

/// Makers with their series and these with their window types. Throws StoreError.
std::vector<TreeNode> LoadWindowTypes(Connection& connection);

/// The row of a window type as its dialog shows it.
struct WindowType {
    std::string name;
    std::string drawing;  ///< empty when none was chosen
};

/// Reads the row of a window type to `slots`. Throws StoreError when there is none.
WindowType ReadWindowType(Connection& connection, std::string_view typeNumber, FieldSlots& slots);

/// Reads the row of a window type to `slots` and returns its drawing's number. Throws StoreError when there
/// is no such window type or no drawing was chosen for it.
std::string DrawingOfWindowType(Connection& connection, std::string_view typeNumber, FieldSlots& slots);

}  // namespace kalvane
