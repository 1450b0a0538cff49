#pragma once

#include "store/connection.h"

namespace kalvane {

/// Fills a new main store with the starter library built into the program: catalogue, drawings, window
/// types and the sample project. A store whose filling failed is of no use. Throws Error when a starter file
/// does not fit its table, naming file and line.
void FillFromStarterLibrary(Connection& main);

}  // namespace kalvane
