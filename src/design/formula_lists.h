#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "formula/bill_row.h"
#include "store/connection.h"

namespace kalvane {

// The formula rows of a window type as four lists of texts, one for each class of material, which the
// designer changes and saves as a whole.

inline constexpr std::size_t kFormulaColumns = 4;

/// The texts of a row, in the order of FormulaTable::columns.
using FormulaTexts = std::array<std::string, kFormulaColumns>;

/// How one class of rows is stored.
struct FormulaTable {
    const char* name;                                  ///< in the store
    const char* caption;                               ///< of its list
    std::array<const char*, kFormulaColumns> columns;  ///< in the store
    std::array<std::size_t, kFormulaColumns> longest;  ///< characters of each; 0 for a number
    std::array<bool, kFormulaColumns> isFormula;       ///< columns that are worked out with the labels
    std::size_t codeColumn;                            ///< that leads to the catalogue
};

/// The classes in the order of the lists.
inline constexpr std::array kListClasses = {MaterialClass::Profile, MaterialClass::Steel,
                                            MaterialClass::Panel, MaterialClass::Fitting};

const FormulaTable& FormulaTableOf(MaterialClass materialClass);

/// All formula rows of a window type.
class FormulaLists {
  public:
    std::vector<FormulaTexts>& operator[](MaterialClass materialClass) {
        return lists_[static_cast<std::size_t>(materialClass)];
    }
    const std::vector<FormulaTexts>& operator[](MaterialClass materialClass) const {
        return lists_[static_cast<std::size_t>(materialClass)];
    }
    friend bool operator==(const FormulaLists&, const FormulaLists&) = default;

  private:
    std::array<std::vector<FormulaTexts>, kListClasses.size()> lists_;
};

/// The rows of a window type (门窗.编号) in the order of the store, a Null as empty text. Throws StoreError.
FormulaLists LoadFormulaLists(Connection& connection, std::string_view type);

/// Adds a row with a new number. The texts are put into the statement as they stand, that of a number bare.
void AddFormulaRow(Connection& connection, MaterialClass materialClass, std::string_view type,
                   const FormulaTexts& row);

/// Replaces the rows of a window type, as one command; every row gets a new number. Nothing is checked: when
/// the store refuses a row (StoreError), the old ones are gone and those before it are saved.
void SaveFormulaLists(Connection& connection, std::string_view type, const FormulaLists& lists);

}  // namespace kalvane
