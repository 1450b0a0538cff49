#pragma once

#include <cmath>
#include <cstdio>
#include <string>

namespace kalvane {

/// An amount rounded to the cent, as people settle it: halves away from zero.
inline double ToCents(double amount) {
    return std::round(amount * 100) / 100;
}

/// An amount with two decimals.
inline std::string CentsText(double amount) {
    char text[64];
    std::snprintf(text, sizeof text, "%.2f", ToCents(amount));
    return text;
}

}  // namespace kalvane
