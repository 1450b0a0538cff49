#pragma once

#include <cstddef>

namespace kalvane {

// A pane simply supported at four edges under an even load, of glass (Poisson's ratio 0.2).

/// Largest moment = coefficient × load × shorter edge². `ratio` is the shorter edge by the longer, 0 to 1;
/// the table is interpolated. JGJ 102 (glass curtain walls), table of m.
double BendingCoefficient(double ratio);

/// Largest deflection = coefficient × load × shorter edge^4 / stiffness. JGJ 102, table of μ.
double DeflectionCoefficient(double ratio);

/// Stiffness of a pane of `thickness` mm, N·mm: E t³ / 12(1 − ν²).
double GlassStiffness(double thickness);

/// Design strength in N/mm². JGJ 102-2003, table 5.2.1: float and tempered glass up to 12, up to 19 and from
/// 20 mm on.
struct GlassStrength {
    double face;
    double edge;
};
GlassStrength StrengthOfGlass(bool isTempered, double thickness);

}  // namespace kalvane
