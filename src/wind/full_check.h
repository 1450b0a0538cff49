#pragma once

#include <cstdint>

#include "wind/full_form.h"

namespace kalvane {

/// The load of the full check, from its base screen, by GB 50009-2001.
struct FullLoad {
    float w0 = 0;             ///< basic pressure, kN/m²
    float uz = 0;             ///< μz, height
    float bgz = 0;            ///< βgz, gusts
    float us = 0;             ///< μs, shape of the building
    float wk = 0;             ///< standard load, kN/m²
    float wd = 0;             ///< design load, kN/m²
    std::int16_t lowest = 0;  ///< temperature over the year, °C
    std::int16_t highest = 0;
};

/// Section of a reinforced frame bar. The same two stand in every report, whatever steel is named.
struct BarSection {
    double inertia;   ///< mm^4
    double modulus;   ///< mm³
    double statical;  ///< first moment of half the section, mm³
};
inline constexpr BarSection kTransomSection{980000, 22000, 24000};
inline constexpr BarSection kMullionSection{14765300, 146190, 98745};

// Strengths of the steel in a frame, N/mm², and the share of its section that may yield.
inline constexpr double kSteelBending = 215;
inline constexpr double kSteelShear = 125;
inline constexpr double kPlasticShare = 1.05;

/// A value beside its limit.
struct Tested {
    double value = 0;
    double limit = 0;
    bool passes = false;
};

/// The numbers of the full check beyond its load. The limits are N/mm² but where another unit stands.
struct FullNumbers {
    double width = 0;  ///< of the glass, mm
    double length = 0;
    double t = 0;        ///< its thickness, mm
    double shorter = 0;  ///< edge, mm
    double longer = 0;
    bool isTempered = false;
    bool isThick = false;  ///< above 6 mm, another formula of the area
    double a = 0;          ///< coefficient of the glass
    Tested area;           ///< m², beside the largest permitted one

    double q1 = 0;  ///< bending coefficient of the ratio the operator chose
    Tested bending;

    std::int16_t span = 0;  ///< of the temperatures, °C
    double c = 0;           ///< glass edge to frame, mm
    Tested temperature;

    Tested deflection;  ///< mm

    double b = 0;  ///< opening, mm
    double h = 0;
    double d = 0;            ///< core diameter of a screw, mm
    double openingLoad = 0;  ///< on the whole opening, N
    double screws = 0;
    double widthScrews = 0;  ///< at each of the two sides
    double heightScrews = 0;

    double steel = 0;               ///< the thickness that shear divides by, mm
    double qb = 0, qh = 0;          ///< N/mm
    double mzb = 0, mzh = 0;        ///< N·mm
    double shearB = 0, shearH = 0;  ///< N
    Tested transomBending, mullionBending;
    Tested transomShear, mullionShear;
};

/// FullRefusal must have passed. Throws NumericError for a number beyond its width.
FullLoad FindFullLoad(const FormTexts& base);

/// Throws NumericError for a load of 0, when the opening, a glass size or thickness, the steel's thickness or
/// the screw's diameter is not above 0, and for numbers too large.
FullNumbers CheckFull(const FullLoad& load, const FormTexts& detail);

}  // namespace kalvane
