#pragma once

#include <array>
#include <span>
#include <string_view>

namespace kalvane {

/// One column of a class of materials.
struct MaterialColumn {
    const char* name;         ///< in the store
    const char* heading;      ///< of the list
    const char* caption;      ///< of its box
    const char* preset = "";  ///< text of its box for a new material
    bool isText = false;      ///< quoted in statements
    bool takesDigits = true;  ///< its box lets digits and points in only
};

/// A class of materials: how it is stored, listed and typed in.
struct CatalogueClass {
    std::string_view kind;      ///< of the tree nodes that have such materials
    const char* name;           ///< the first two characters of the list's first heading
    const char* table;          ///< in the store
    const char* parentColumn;   ///< the number of the node
    const char* dialog;         ///< name of the screen it is typed in
    const char* formulaTable;   ///< rows of window types that quote such materials
    const char* formulaColumn;  ///< their column with the code
    std::size_t code;           ///< the column that they quote
    std::size_t price;          ///< the column of the price
    const char* priceCaption;   ///< of the dialog that sets all prices; null when there is none
    std::span<const MaterialColumn> columns;
};

// Kinds of the tree's nodes: the maker's class, and "5" for a series of profiles.
inline constexpr std::string_view kProfileMakerKind = "1";
inline constexpr std::string_view kSeriesKind = "5";

/// The makers' categories in the order of their numbers, from "1" on.
inline constexpr std::array kMakerCategories = {"型材厂家", "型钢厂家", "板材厂家", "配件厂家"};

/// Profiles, steels, panels and fittings.
std::span<const CatalogueClass> CatalogueClasses();

/// The class that a kind of node lists; null for the maker of profiles, whose series list them.
const CatalogueClass* ClassOfKind(std::string_view kind);

}  // namespace kalvane
