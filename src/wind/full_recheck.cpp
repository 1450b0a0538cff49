#include "wind/full_recheck.h"

#include <algorithm>
#include <cmath>

#include "wind/plate.h"
#include "wind/wind_tables.h"

namespace kalvane {
namespace {

constexpr double kPerMillimetre = 1e-3;  // N/mm² of 1 kN/m²
constexpr double kGlassElasticity = 72000;
constexpr double kExpansion = 1e-5;
constexpr double kEdgeGap = 3;          // mm
constexpr double kPermittedShare = 60;  // shorter edge by permitted deflection
constexpr double kScrewShear = 130;
constexpr double kPi = 3.14159265358979;
constexpr double kDesignFactor = 1.4;  // GB 50009-2001, 3.2.5

std::string Cubed(double value) {
    return Figure(value) + "³";
}

RecheckRow LoadRow(const FullLoad& load) {
    return {.sign = "Wk",
            .check = "风荷载标准值",
            .formula = "Wk = βgz·μs·μz·W0",
            .numbers = Figure(load.bgz) + " × " + Figure(load.us) + " × " + Figure(load.uz) + " × " +
                       Figure(load.w0),
            .value = static_cast<double>(load.bgz) * load.us * load.uz * load.w0,
            .unit = "kN/m²"};
}

RecheckRow BendingRow(double wd, const FullNumbers& numbers) {
    const double m = BendingCoefficient(numbers.shorter / numbers.longer);
    const double a = numbers.shorter;
    const double t = numbers.t;
    return {.sign = "σw",
            .check = "玻璃弯曲应力",
            .formula = "σw = 6·m·W·a² / t²，m 按实际边长比",
            .numbers = "6 × " + Figure(m) + " × " + Figure(wd) + " × " + Figure(a) + "² / " + Figure(t) + "²",
            .value = 6 * m * wd * a * a / (t * t),
            .unit = "N/mm²",
            .relation = "≤",
            .limit = StrengthOfGlass(numbers.isTempered, t).face,
            .told = numbers.bending.passes};
}

RecheckRow TemperatureRow(const FullNumbers& numbers) {
    const double gap = 2 * numbers.c - kEdgeGap;
    return {.sign = "σt",
            .check = "玻璃年温度应力",
            .formula = "σt = E·(α·△T − (2c − d) / b)",
            .numbers = "72000 × (0.00001 × " + Figure(numbers.span) + " − (2 × " + Figure(numbers.c) +
                       " − 3) / " + Figure(numbers.longer) + ")",
            .value = kGlassElasticity * (kExpansion * numbers.span - gap / numbers.longer),
            .unit = "N/mm²",
            .relation = "≤",
            .limit = StrengthOfGlass(numbers.isTempered, numbers.t).edge,
            .told = numbers.temperature.passes};
}

RecheckRow DeflectionRow(double wk, const FullNumbers& numbers) {
    const double coefficient = DeflectionCoefficient(numbers.shorter / numbers.longer);
    const double stiffness = GlassStiffness(numbers.t);
    return {.sign = "u",
            .check = "玻璃跨中挠度",
            .formula = "u = μ·Wk·a^4 / D，D = E·t³ / 12(1 − ν²)，限值 a / 60",
            .numbers = Figure(coefficient) + " × " + Figure(wk) + " × " + Figure(numbers.shorter) +
                       "^4 / (72000 × " + Cubed(numbers.t) + " / 11.52)",
            .value = coefficient * wk * std::pow(numbers.shorter, 4) / stiffness,
            .unit = "mm",
            .relation = "<",
            .limit = numbers.shorter / kPermittedShare,
            .told = numbers.deflection.passes};
}

RecheckRow ScrewRow(double wd, const FullNumbers& numbers) {
    const double force = wd * numbers.b * numbers.h;
    const double screws = force / (kPi * numbers.d * numbers.d / 4 * kScrewShear);
    return {.sign = "N",
            .check = "螺钉总数，按所列的抗剪强度 130 N/mm²",
            .formula = "N = W·b·h / (π·d² / 4 × 130)",
            .numbers = Figure(wd) + " × " + Figure(numbers.b) + " × " + Figure(numbers.h) + " / (π × " +
                       Figure(numbers.d) + "² / 4 × 130)，至少 " + Figure(std::ceil(screws)) + " 个",
            .value = screws,
            .unit = "个"};
}

/// A bar of the frame that carries the opening's whole load over `span`; `width` is the opening's other size.
RecheckRow BarBendingRow(const std::string& bar, double wd, double width, double span,
                         const BarSection& section, const Tested& told) {
    return {.sign = "σ" + bar,
            .check = bar + "正应力",
            .formula = "σ = q·l² / 8 / (1.05·Wz)，q = W × 另一边长",
            .numbers = Figure(wd) + " × " + Figure(width) + " × " + Figure(span) + "² / 8 / (1.05 × " +
                       Figure(section.modulus) + ")",
            .value = wd * width * span * span / 8 / (kPlasticShare * section.modulus),
            .unit = "N/mm²",
            .relation = "<",
            .limit = kSteelBending,
            .told = told.passes};
}

RecheckRow BarShearRow(const std::string& bar, double wd, const FullNumbers& numbers,
                       const BarSection& section, const Tested& told) {
    return {.sign = "τ" + bar,
            .check = bar + "剪应力",
            .formula = "τ = (W·b·h / 2)·S / (I·t)",
            .numbers = Figure(wd) + " × " + Figure(numbers.b) + " × " + Figure(numbers.h) + " / 2 × " +
                       Figure(section.statical) + " / (" + Figure(section.inertia) + " × " +
                       Figure(numbers.steel) + ")",
            .value = wd * numbers.b * numbers.h / 2 * section.statical / (section.inertia * numbers.steel),
            .unit = "N/mm²",
            .relation = "<",
            .limit = kSteelShear,
            .told = told.passes};
}

void WarnOfLoad(Recheck& recheck, const FormTexts& base, const FullLoad& load) {
    WarnOfPressure(recheck, load.w0);
    const float gust = GustCoefficient(base.Choice("Combo3"), base.Choice("Combo2"));
    if (load.bgz != gust) {
        recheck.warnings.push_back("所填的阵风系数 " + Figure(load.bgz) + " 与 GB 50009-2001 表 7.5.1 的 " +
                                   Figure(gust) + " 不同。");
    }
    const double factor = base.LeadingFloat("Text8");
    if (static_cast<float>(factor) < static_cast<float>(kDesignFactor)) {
        recheck.warnings.push_back("风荷载设计值系数 " + Figure(factor) +
                                   " 小于 GB 50009-2001 的分项系数 1.4；复核按所填的系数计算。");
    }
    if (load.wk < 0) recheck.warnings.emplace_back("风荷载为负（吸力），复核按绝对值计算。");
    if (load.lowest > load.highest) recheck.warnings.emplace_back("最低温度高于最高温度。");
}

/// The row of the list nearest to the glass's ratio is the one to choose.
void WarnOfRatio(Recheck& recheck, const FormTexts& detail, double ratio) {
    const std::size_t place = NearestBendingRow(ratio);
    if (detail.Choice("Combo2") == place) return;
    const auto& boxes = detail.Boxes();
    const auto list =
        std::find_if(boxes.begin(), boxes.end(), [](const FormBox& box) { return box.name == "Combo2"; });
    recheck.warnings.push_back("报告所取的长短边比值 " + detail.Text("Combo2") + " 不是这块玻璃的 " +
                               Figure(ratio) + "，表中最接近的是 " + std::string(list->choices[place]) +
                               "。");
}

void WarnOfWindow(Recheck& recheck, const FullNumbers& numbers, const RecheckRow& deflection) {
    if (deflection.value > numbers.t) {
        recheck.warnings.emplace_back("玻璃挠度大于厚度，小挠度公式给出的应力和挠度偏大，偏于安全。");
    }
    if (numbers.width > numbers.b || numbers.length > numbers.h) {
        recheck.warnings.emplace_back("玻璃尺寸大于洞口尺寸。");
    }
    recheck.warnings.emplace_back(
        "横框、立框的截面值是固定值，与所填的型钢无关；换用其他型钢时，横框、立框各行只供参考。");
}

}  // namespace

Recheck RecheckFull(const FullTexts& texts, const FullLoad& load, const FullNumbers& numbers) {
    const double wk = std::fabs(load.wk) * kPerMillimetre;
    const double wd = std::fabs(load.wd) * kPerMillimetre;
    const double area = numbers.width * numbers.length / 1e6;
    Recheck recheck;
    recheck.rows = {LoadRow(load),
                    AreaRow(numbers.a, numbers.t, std::fabs(load.wk), area, numbers.area.passes),
                    BendingRow(wd, numbers),
                    TemperatureRow(numbers),
                    DeflectionRow(wk, numbers),
                    ScrewRow(wd, numbers),
                    BarBendingRow("横框", wd, numbers.h, numbers.b, kTransomSection, numbers.transomBending),
                    BarBendingRow("立框", wd, numbers.b, numbers.h, kMullionSection, numbers.mullionBending),
                    BarShearRow("横框", wd, numbers, kTransomSection, numbers.transomShear),
                    BarShearRow("立框", wd, numbers, kMullionSection, numbers.mullionShear)};
    WarnOfLoad(recheck, texts.base, load);
    WarnOfGlass(recheck, texts.detail.Choice("Combo1"), numbers.t);
    WarnOfRatio(recheck, texts.detail, numbers.shorter / numbers.longer);
    WarnOfWindow(recheck, numbers, recheck.rows[4]);
    return recheck;
}

}  // namespace kalvane
