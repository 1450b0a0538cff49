#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue_class.h"
#include "store/connection.h"
#include "store/tree_node.h"

namespace kalvane {

// Makers, series of profiles and materials. Numbers are 编号 of the row that is meant, carried as text. Texts
// and numbers are put into the statements as they are typed; each routine is one command on the store and
// throws StoreError when it refuses.

struct Maker {
    std::string name;
    std::string phone;
    std::string address;
    std::string fax;
    std::string category;  ///< "1" to "4"
};

/// A material as its list has it: the columns of its class, and behind them the number of its node and its
/// own.
using MaterialTexts = std::vector<std::string>;

/// The makers in the order of the store, those of profiles with their series.
std::vector<TreeNode> LoadCatalogueTree(Connection& connection);

Maker LoadMaker(Connection& connection, std::string_view maker);
/// Returns the new number.
std::string AddMaker(Connection& connection, const Maker& maker);
/// Writes the category too; the tags of a loaded tree keep the old one.
void UpdateMaker(Connection& connection, std::string_view number, const Maker& maker);

/// Returns the new number.
std::string AddSeries(Connection& connection, std::string_view maker, std::string_view name);
void RenameSeries(Connection& connection, std::string_view series, std::string_view name);

/// Deletes a node with all below it, by the kind in its tag: a maker of profiles with its series and their
/// profiles, any other maker with its materials, a series with its profiles. Formulas that quote the
/// materials keep the text.
void DeleteCatalogueNode(Connection& connection, std::string_view tag);

/// The materials of a node, in the order of the store.
std::vector<MaterialTexts> LoadMaterials(Connection& connection, const CatalogueClass& materialClass,
                                         std::string_view parent);
/// One material; throws StoreError when there is none of that number.
MaterialTexts LoadMaterial(Connection& connection, const CatalogueClass& materialClass,
                           std::string_view number);
/// Adds a material with the texts of its columns and returns its number. Nothing keeps two from being alike.
std::string AddMaterial(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
                        const MaterialTexts& texts);
void UpdateMaterial(Connection& connection, const CatalogueClass& materialClass, std::string_view number,
                    const MaterialTexts& texts);
void DeleteMaterial(Connection& connection, const CatalogueClass& materialClass, std::string_view number);

/// Sets the price of every material of a node.
void SetPrices(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
               std::string_view price);

}  // namespace kalvane
