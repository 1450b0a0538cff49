#pragma once

#include <set>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"

namespace kalvane {

// Which window types quote a material in their formulas. They do so by a text, the 规格 or of a panel the
// 名称, in which upper and lower case differ.

struct MaterialUse {
    std::string maker;
    std::string series;
    std::string type;
    int rows;  ///< that quote it
};

/// The window types that quote a code, in the order of their numbers. Throws StoreError.
std::vector<MaterialUse> UsesOfMaterial(Connection& connection, const CatalogueClass& materialClass,
                                        const std::string& code);

/// How many window types quote at least one material of a node, a maker of profiles with all its series.
/// Throws StoreError.
int TypesThatQuote(Connection& connection, std::string_view tag);

/// The uses as lines for the operator.
std::string UsesText(const std::string& code, const std::vector<MaterialUse>& uses);

}  // namespace kalvane
