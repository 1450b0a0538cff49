#pragma once

#include <map>
#include <span>
#include <string>

#include "project/composite_windows.h"
#include "store/connection.h"

namespace kalvane {

/// What is wrong with members of a composite under edit, by their place in the tree: two of one type and name
/// would share their rows, one without rows vanishes at the save, and one whose labels are all still "0"
/// gives pieces without a length. Throws StoreError.
std::map<std::size_t, std::string> FindMemberFaults(Connection& connection,
                                                    std::span<const CompositeMember> members);

}  // namespace kalvane
