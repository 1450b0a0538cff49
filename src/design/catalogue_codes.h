#pragma once

#include <array>
#include <set>
#include <string>

#include "design/formula_lists.h"
#include "store/connection.h"

namespace kalvane {

/// The codes that the catalogue has for each class, as they were when this was made; of panels, the names.
/// Upper and lower case differ, as they do when prices are looked up.
class CatalogueCodes {
  public:
    /// Throws StoreError.
    explicit CatalogueCodes(Connection& connection);

    bool Has(MaterialClass materialClass, const std::string& code) const;

  private:
    std::array<std::set<std::string>, kListClasses.size()> codes_;
};

}  // namespace kalvane
