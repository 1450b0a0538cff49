#pragma once

#include <string>
#include <string_view>

#include "store/connection.h"

namespace kalvane {

// The rows of 标注2: a row for each label of a member of a composite window.

/// The MCBN of the rows of the composite that is under edit. There is one such work area, and its rows never
/// outlive the screen.
inline constexpr const char* kMembersUnderEdit = "-1";

/// A number as it stands in a statement; a Null stays one.
std::string NumberOrNull(const FieldValue& value);

/// Writes the members' rows of one composite once more, under another MCBN. Throws StoreError.
void CopyMemberRows(Connection& connection, std::string_view from, std::string_view to);

/// Deletes the rows under edit. Also what a killed program has left of them, which would come up in the next
/// composite. Throws StoreError.
void DropMembersUnderEdit(Connection& connection);

}  // namespace kalvane
