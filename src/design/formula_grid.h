#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "design/formula_export.h"
#include "design/formula_lists.h"

namespace kalvane {

/// The line of headings before the rows of a class.
const GridLine& GridHeadings(MaterialClass materialClass);

/// The class whose headings begin as a first cell does, by its first four characters; nothing for any other
/// text.
std::optional<MaterialClass> ClassOfHeading(std::string_view firstCell);

/// True for the head of a window type, by the same rule.
bool IsTypeHead(std::string_view firstCell);

}  // namespace kalvane
