#pragma once

#include <string>
#include <vector>

#include "design/formula_edits.h"
#include "store/connection.h"
#include "store/tree_node.h"

namespace kalvane {

// The materials of the catalogue as the designer chooses from them. A node's kind is the class of a maker,
// "1" profiles, "2" steels, "3" panels, "4" fittings, or "5" for a series of profiles below its maker.

/// Makers in the order of the store, those of profiles with their series. Throws StoreError.
std::vector<TreeNode> LoadMaterialTree(Connection& connection);

/// What a node lists: nothing for a maker of profiles, whose series list them.
struct MaterialList {
    MaterialClass materialClass = MaterialClass::Profile;
    std::vector<std::string> headings;  ///< the first begins with the name of the class
    std::vector<std::vector<std::string>> rows;
};

/// The materials of a node, by its tag. Without headings when it lists none. Throws StoreError.
MaterialList LoadMaterials(Connection& connection, const std::string& tag);

/// The material of a row of such a list.
Material MaterialOf(MaterialClass materialClass, const std::vector<std::string>& row);

}  // namespace kalvane
