#include "wind/recheck.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "wind/verdict.h"

namespace kalvane {
namespace {

constexpr double kThinGlass = 6;         // mm
constexpr double kLowestPressure = 0.3;  // kN/m²
constexpr double kThinnest = 3;          // mm, of window glass
constexpr double kThickest = 19;

}  // namespace

std::string Figure(double value) {
    char buffer[64];
    const double size = std::fabs(value);
    const char* form = size >= 1e5 && size < 1e9 ? "%.0f" : "%.5g";
    std::snprintf(buffer, sizeof buffer, form, value);
    return buffer;
}

std::optional<bool> RecheckRow::Passes() const {
    if (relation.empty()) return std::nullopt;
    if (relation == "<") return value < limit;
    return relation == "≥" ? value >= limit : value <= limit;
}

bool RecheckRow::Differs() const {
    const std::optional<bool> passes = Passes();
    return passes && told && *passes != *told;
}

std::string RecheckRow::ResultText() const {
    return sign + " = " + Figure(value) + (unit.empty() ? "" : " " + unit);
}

std::string RecheckRow::LimitText() const {
    return relation.empty() ? "" : relation + " " + Figure(limit) + (unit.empty() ? "" : " " + unit);
}

std::string RecheckRow::VerdictText() const {
    const std::optional<bool> passes = Passes();
    if (!passes) return {};
    const std::string verdict = VerdictWord(*passes);
    if (!Differs()) return verdict;
    return "报告" + VerdictWord(*told) + "，按一致单位复核" + verdict;
}

bool Recheck::Differs() const {
    return std::any_of(rows.begin(), rows.end(), [](const RecheckRow& row) { return row.Differs(); });
}

bool Recheck::Passes() const {
    return std::all_of(rows.begin(), rows.end(),
                       [](const RecheckRow& row) { return row.Passes().value_or(true); });
}

void WarnOfPressure(Recheck& recheck, double w0) {
    if (w0 < kLowestPressure) {
        recheck.warnings.push_back("基本风压 " + Figure(w0) + " kN/m² 小于 GB 50009-2001 规定的下限 " +
                                   Figure(kLowestPressure) + " kN/m²。");
    }
}

void WarnOfGlass(Recheck& recheck, std::size_t glass, double thickness) {
    constexpr std::size_t kLaminated = 3;
    constexpr std::size_t kInsulating = 4;
    constexpr std::size_t kWired = 5;
    constexpr std::size_t kPatterned = 6;
    if (thickness < kThinnest || thickness > kThickest) {
        recheck.warnings.push_back("玻璃厚度 " + Figure(thickness) +
                                   " mm 不在门窗玻璃常用的 3～19 mm 之内。");
    }
    if (glass == kLaminated || glass == kInsulating) {
        recheck.warnings.emplace_back("夹层、中空玻璃按所填的一个厚度计算；厚度应填其中较薄的单片。");
    }
    if (glass == kWired || glass == kPatterned) {
        recheck.warnings.emplace_back("夹丝、压花玻璃的强度低于浮法玻璃，弯曲应力的限值偏高。");
    }
}

RecheckRow AreaRow(double a, double thickness, double wk, double area, bool told) {
    RecheckRow row{.sign = "Amax",
                   .check = "玻璃最大许用面积",
                   .unit = "m²",
                   .relation = "≥",
                   .limit = area,
                   .told = told};
    if (thickness <= kThinGlass) {
        row.formula = "Amax = 0.2·α·t^1.8 / Wk";
        row.numbers = "0.2 × " + Figure(a) + " × " + Figure(thickness) + "^1.8 / " + Figure(wk);
        row.value = 0.2 * a * std::pow(thickness, 1.8) / wk;
    } else {
        row.formula = "Amax = α·(0.2·t^1.6 + 0.8) / Wk";
        row.numbers = Figure(a) + " × (0.2 × " + Figure(thickness) + "^1.6 + 0.8) / " + Figure(wk);
        row.value = a * (0.2 * std::pow(thickness, 1.6) + 0.8) / wk;
    }
    return row;
}

}  // namespace kalvane
