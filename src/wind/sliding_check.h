#pragma once

#include <cstdint>

#include "wind/form_texts.h"

namespace kalvane {

/// The numbers of the check of a sliding window by GB 50009-2001 (load) and JGJ 113-2003 (glass).
struct SlidingNumbers {
    float us = 0;   ///< μs, shape of the building
    float uz = 0;   ///< μz, height
    float bgz = 0;  ///< βgz, gusts
    float wo = 0;   ///< basic pressure, kN/m²
    bool isHigh = false;
    float wk = 0;  ///< standard load, kN/m²

    double a = 0;          ///< coefficient of the glass
    std::int16_t t = 0;    ///< its thickness, mm
    bool isThick = false;  ///< from 7 mm on, another formula
    double amax = 0;       ///< largest permitted area of the pane, m²
    double area = 0;       ///< its area, m²
    bool glassPasses = false;

    float i = 0;          ///< inertia of the steel, cm^4
    float fmax = 0;       ///< deflection of the steel, mm
    float permitted = 0;  ///< L / 180, mm
    bool steelPasses = false;
};

/// Works the check out in 64 bits; what is held in 32 bits is rounded once. Only the boxes that a formula
/// uses are read. SlidingRefusal must have passed. Throws NumericError for a text that is no number, for a
/// value beyond its width (16 bits for some sizes in some layouts), and for a load, inertia or modulus of
/// zero.
SlidingNumbers CheckSliding(const FormTexts& texts);

}  // namespace kalvane
