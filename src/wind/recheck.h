#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kalvane {

/// One check of a report worked out once more, in consistent units.
struct RecheckRow {
    std::string sign{};  ///< short name of the result
    std::string check{};
    std::string formula{};
    std::string numbers{};  ///< the formula with the numbers put in
    double value = 0;       ///< the result, in `unit`
    std::string unit{};
    std::string relation{};  ///< of the result to the limit: "<", "≤" or "≥"; empty without a limit
    double limit = 0;
    std::optional<bool> told{};  ///< the report's verdict, if it has one

    std::optional<bool> Passes() const;
    /// True when the report says otherwise.
    bool Differs() const;
    std::string ResultText() const;
    std::string LimitText() const;
    /// The verdict in words, with the report's where that differs; empty without a limit.
    std::string VerdictText() const;
};

struct Recheck {
    std::vector<RecheckRow> rows;
    /// Where an input leaves the range of a formula, or contradicts another. Sentences for the operator.
    std::vector<std::string> warnings;

    bool Differs() const;
    bool Passes() const;
};

/// A number with five significant digits, without an exponent where it has up to nine integer digits.
std::string Figure(double value);

/// A warning about a basic pressure below what GB 50009-2001, 7.1.2 allows.
void WarnOfPressure(Recheck& recheck, double w0);
/// Warnings about the kind and thickness of the glass.
void WarnOfGlass(Recheck& recheck, std::size_t glass, double thickness);

/// The largest permitted area of a pane beside its area. `wk` in kN/m², areas in m². JGJ 113-2003.
RecheckRow AreaRow(double a, double thickness, double wk, double area, bool told);

}  // namespace kalvane
