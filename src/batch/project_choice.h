#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// 编号 of the project of that name. Throws StoreError when there is none.
std::string ProjectNumber(Connection& connection, const std::string& name);

/// Places in a list of `count` windows, from 1, given such as "1,3", in that order; all of them for an empty
/// text. Throws Error when there is no such place.
std::vector<int> ChosenPlaces(const std::string& project, std::size_t count, std::string_view places);

/// Windows of a project by their places in its list from 1 on, such as "1,3", in that order; all of them for
/// an empty text. Throws Error when there is no such place.
std::vector<WindowEntry> ChosenWindows(Connection& connection, const std::string& project,
                                       std::string_view places);

}  // namespace kalvane
