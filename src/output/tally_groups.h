#pragma once

#include <string>
#include <vector>

#include "formula/formula_rows.h"
#include "store/connection.h"

namespace kalvane {

/// Which classes a tally shows.
struct ClassChoice {
    bool profile = true;
    bool steel = true;
    bool panel = true;
    bool fitting = true;

    bool Has(MaterialClass materialClass) const;
};

/// The summary has a row for each 规格, the detail for each 规格 and size.
enum class TallyView { Summary, Detail };

/// Raw rows of a tally that make one of its rows.
struct TallyGroup {
    MaterialClass materialClass = MaterialClass::Profile;
    std::string key;     ///< 规格, or the 名称 of a panel
    std::string length;  ///< mm, in the detail; a fitting has none
    std::string width;   ///< mm of a panel, in the detail
    /// Summary: mm of profiles and steels, square metres of panels. Detail: pieces. Fittings: their count.
    double sum = 0;
};

/// The groups of one class, by their key. Throws StoreError.
std::vector<TallyGroup> TallyGroups(Connection& connection, MaterialClass materialClass, TallyView view);

/// Where a class has its catalogue, and the column that the keys of groups are looked for in.
struct CatalogueTable {
    const char* table;
    const char* keyColumn;
};
CatalogueTable CatalogueOf(MaterialClass materialClass);

}  // namespace kalvane
