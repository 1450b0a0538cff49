#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sheet_reader.h"
#include "store/connection.h"

namespace kalvane {

// Window types out of the grid that formula_export writes, into a series. Rows are taken from the first on;
// the first blank cell of column 1 is the end, whatever stands below. What the lines are shows column 1.

/// Reads the four columns of a workbook's first sheet. Throws FileError.
SheetTexts ReadFormulaSheet(const std::filesystem::path& file);

/// How far an import has come.
struct ImportedFormulas {
    int types = 0;
    int rows = 0;      ///< of formulas
    int sheetRow = 0;  ///< the row of the sheet it is at, from 1
};

/// Adds the window types of a sheet with their formula rows to a series (门窗系列.编号), as one command. The
/// formula rows get no number of their own. The texts are put into the statements as they stand, so that one
/// with a quote, one that is too long, and a number that is none are refused: the import ends there and what
/// came before stays. Throws StoreError then, with the number of the row in its text; `imported` is up to
/// date.
void ImportFormulas(Connection& connection, const SheetTexts& sheet, std::string_view series,
                    ImportedFormulas& imported);

/// A window type that a sheet holds.
struct SheetType {
    int row;  ///< in the sheet, from 1
    std::string name;
    std::string drawing;  ///< 图号
    bool hasDrawing;      ///< in the library
    int rows = 0;         ///< of formulas
};

/// What an import would do.
struct ImportPreview {
    std::vector<SheetType> types{};
    int rows = 0;                  ///< of formulas
    std::vector<int> strayRows{};  ///< of formulas before the first type, which go to the last type there is
    std::vector<int> dropped{};    ///< rows before any heading of their type, which are not imported
    int firstIgnored = 0;          ///< the first row with a text below the blank cell that ends it; 0: none
    int refusedRow = 0;            ///< the first row that the store would refuse; 0: none
    std::string refusal{};         ///< why
};

/// Goes through a sheet as ImportFormulas would, and changes nothing: what would be refused is found by
/// importing into a store that is thrown away. Throws StoreError, and FileError when there is no room for it.
ImportPreview PreviewImport(Connection& connection, const SheetTexts& sheet);

/// A preview as lines for the operator.
std::string PreviewText(const ImportPreview& preview);

}  // namespace kalvane
