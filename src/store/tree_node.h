#pragma once

#include <string>
#include <vector>

namespace kalvane {

/// A node of a tree over tables: makers, series, types. The tag is a key (MakeKey in store/helpers.h): its
/// first character is the node's kind, the rest the number of its row.
struct TreeNode {
    std::string name;
    std::string tag;
    std::vector<TreeNode> children{};
};

}  // namespace kalvane
