#pragma once

#include <string_view>

namespace kalvane {

/// What a user may be granted, in the order of the rights string.
enum class Right {
    Catalogue,
    Drawing,
    Design,
    Project,
    Optimise,
    WindCheck,
    Backup,
    Settings,
    Background,
    Users,
    Password,
    Stock,
};

inline constexpr int kRightCount = 12;

/// Caption of a right as the user administration shows it.
std::string_view RightCaption(Right right);

/// True when the rights string grants the right: "1" at its position. A string of any other length than
/// twelve characters grants nothing.
bool IsGranted(std::string_view userAuth, Right right);

}  // namespace kalvane
