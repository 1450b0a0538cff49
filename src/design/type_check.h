#pragma once

#include <string>
#include <vector>

#include "design/formula_check.h"

namespace kalvane {

struct TypeFinding {
    std::string type;  ///< name of the window type
    FormulaFinding finding;
};

/// What outputs will miss in the formulas of all window types, in the order of the store: codes that the
/// catalogue has not, names that the drawing has not, formulas that cannot be evaluated. Throws StoreError.
std::vector<TypeFinding> FindingsOfAllTypes(Connection& connection);

}  // namespace kalvane
