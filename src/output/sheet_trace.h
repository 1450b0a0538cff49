#pragma once

#include <string>

#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// How a row of a window's sheet, from 1, comes about: for each of its lengths and its count the formula, the
/// same with the values of the labels put in, and what it gives; a line each. Empty for a heading and behind
/// the last row. What cannot be worked out says why.
std::string TraceSheetRow(Connection& connection, const WindowEntry& window, int row);

}  // namespace kalvane
