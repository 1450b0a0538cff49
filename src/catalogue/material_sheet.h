#pragma once

#include <string>
#include <utility>
#include <vector>

#include "catalogue/catalogue.h"
#include "page/report.h"
#include "page/table_file.h"
#include "platform/sheet_reader.h"

namespace kalvane {

// The materials of a node on paper and in a spreadsheet, in the columns of their list.

/// Columns that have to be read of a sheet of materials.
inline constexpr int kMaterialSheetColumns = 20;

/// `title` says whose materials they are.
FileTable MaterialTable(const CatalogueClass& materialClass, const std::string& title,
                        const std::vector<MaterialTexts>& materials);
Report MaterialReport(const CatalogueClass& materialClass, const std::string& title,
                      const std::vector<MaterialTexts>& materials);

/// What a sheet would change in the materials of a node. A row with the name and the code of a material that
/// is there already stands for it; any other is a new material.
struct MaterialChanges {
    std::vector<MaterialTexts> added;
    std::vector<std::pair<std::string, MaterialTexts>> changed;  ///< by the material's number
    int same = 0;
    std::vector<std::string> refusals;  ///< "第 5 行“型材长度mm”：…"
};

/// Compares a sheet with the materials of a node. Its headings may stand in any of the first rows and in any
/// order; rows go to the first that is blank. Throws FileError when a heading is missing.
MaterialChanges CompareSheet(Connection& connection, const CatalogueClass& materialClass,
                             std::string_view parent, const SheetTexts& sheet);

/// Makes the changes, as one command. Throws StoreError.
void ApplyChanges(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
                  const MaterialChanges& changes);

}  // namespace kalvane
