#include "wind/full_check.h"

#include <algorithm>
#include <cmath>

#include "numeric/error.h"
#include "numeric/number.h"
#include "wind/wind_tables.h"

namespace kalvane {
namespace {

// N/mm² but for the plain coefficients.
constexpr double kGlassElasticity = 72000;
constexpr double kPoisson = 0.2;
constexpr double kExpansion = 1e-5;
constexpr double kTemperedStrength = 84;
constexpr double kEdgeStrength = 19.5;
constexpr double kEdgeGap = 3;   // mm, allowance of the glass edge
constexpr double kUnitLoad = 1;  // of the deflection
constexpr double kDeflection = 0.00528392;
constexpr double kDeflectionLimit = 30;  // mm
constexpr double kThinGlass = 6;         // mm
constexpr double kPi = 3.1415926;
constexpr double kScrewShear = 35;

/// What a formula divides by, or what makes no sense at 0: read from a box, above 0.
double Size(const FormTexts& texts, std::string_view name) {
    const double size = texts.LeadingDouble(name);
    if (size > 0) return size;
    const auto box = std::find_if(texts.Boxes().begin(), texts.Boxes().end(),
                                  [name](const FormBox& candidate) { return candidate.name == name; });
    throw NumericError("除数为零：“" + std::string(CaptionWord(box->caption)) +
                       "”必须大于 0，请改正后再校核。");
}

Tested Below(double value, double limit) {
    return {value, limit, value < limit};
}

Tested AtMost(double value, double limit) {
    return {value, limit, value <= limit};
}

void CheckGlass(const FullLoad& load, const FormTexts& detail, FullNumbers& numbers) {
    numbers.width = Size(detail, "Text11");
    numbers.length = Size(detail, "Text12");
    const bool isUpright = numbers.width < numbers.length;
    numbers.shorter = isUpright ? numbers.width : numbers.length;
    numbers.longer = isUpright ? numbers.length : numbers.width;
    numbers.t = Size(detail, "Text7");
    numbers.isThick = numbers.t > kThinGlass;
    const std::size_t glass = detail.Choice("Combo1");
    numbers.isTempered = glass == kTemperedGlass;
    numbers.a = GlassCoefficient(glass);

    if (load.wk == 0) throw NumericError("除数为零：风荷载标准值为 0，请改正基本风压和各系数。");
    const double strength = numbers.isThick ? numbers.a * (0.2 * std::pow(numbers.t, 1.6) + 0.8)
                                            : 0.2 * numbers.a * std::pow(numbers.t, 1.8);
    numbers.area = Below(numbers.width / 1000 * (numbers.length / 1000), strength / load.wk);

    numbers.q1 = kBending[detail.Choice("Combo2")].coefficient;
    const double slenderness = numbers.shorter * numbers.shorter / (numbers.t * numbers.t);
    numbers.bending = AtMost(slenderness * 6 * numbers.q1 * (load.wd / 1e6),
                             numbers.isTempered ? kTemperedStrength : kEdgeStrength);

    const int span = int{load.highest} - load.lowest;
    if (span != static_cast<std::int16_t>(span)) {
        throw NumericError("溢出：最高温度与最低温度之差超出范围，请改正后再校核。");
    }
    numbers.span = static_cast<std::int16_t>(span);
    numbers.c = detail.LeadingDouble("Text8");
    const double gap = (2 * numbers.c - kEdgeGap) / numbers.longer;
    numbers.temperature = AtMost(kGlassElasticity * (kExpansion * numbers.span - gap), kEdgeStrength);

    const double stiffness = kGlassElasticity * std::pow(numbers.t, 3) / (12 * (1 - kPoisson * kPoisson));
    const double deflection = kDeflection * kUnitLoad * std::pow(numbers.shorter, 4) / stiffness;
    numbers.deflection = Below(deflection / 1000, kDeflectionLimit);
}

void CountScrews(const FullLoad& load, const FormTexts& detail, FullNumbers& numbers) {
    numbers.b = Size(detail, "Text1");
    numbers.h = Size(detail, "Text2");
    numbers.d = Size(detail, "Text13");
    numbers.openingLoad = load.wd / 1000.0 * numbers.b * numbers.h;
    numbers.screws = numbers.openingLoad / (kPi * (numbers.d * numbers.d) / 4 * kScrewShear);
    const double edges = 2 * (numbers.b + numbers.h);
    numbers.widthScrews = numbers.screws * numbers.b / edges;
    numbers.heightScrews = numbers.screws * numbers.h / edges;
}

void CheckFrame(const FullLoad& load, const FormTexts& detail, FullNumbers& numbers) {
    const double b = numbers.b;
    const double h = numbers.h;
    numbers.steel = Size(detail, "Text10");
    numbers.qb = load.wd / 1000.0 * h;
    numbers.qh = load.wd / 1000.0 * b;
    numbers.mzb = numbers.qb * (b * b) / 8;
    numbers.mzh = numbers.qh * (h * h) / 8;
    numbers.shearB = numbers.qb * b / 2;
    numbers.shearH = numbers.qh * h / 2;
    const auto bending = [](double moment, const BarSection& section) {
        return Below(moment / (kPlasticShare * section.modulus), kSteelBending);
    };
    const auto shear = [&numbers](double force, const BarSection& section) {
        return Below(force * section.statical / (section.inertia * numbers.steel), kSteelShear);
    };
    numbers.transomBending = bending(numbers.mzb, kTransomSection);
    numbers.mullionBending = bending(numbers.mzh, kMullionSection);
    numbers.transomShear = shear(numbers.shearB, kTransomSection);
    numbers.mullionShear = shear(numbers.shearH, kMullionSection);
}

/// A number beyond the range of 64 bits shows as an infinity, or as none at all, in what follows from it.
void RequireFinite(const FullNumbers& numbers) {
    for (const double value :
         {numbers.area.value, numbers.area.limit, numbers.bending.value, numbers.temperature.value,
          numbers.deflection.value, numbers.screws, numbers.transomBending.value,
          numbers.mullionBending.value, numbers.transomShear.value, numbers.mullionShear.value}) {
        if (!std::isfinite(value)) {
            throw NumericError("溢出：洞口、玻璃、型钢或螺钉的尺寸过大或过小，请改正后再校核。");
        }
    }
}

}  // namespace

FullLoad FindFullLoad(const FormTexts& base) {
    FullLoad load;
    load.w0 = base.LeadingFloat("Text3");
    load.uz = HeightCoefficient(base.Choice("Combo3"), base.Choice("Combo2"));
    load.bgz = base.LeadingFloat("Text6");
    load.us = base.LeadingFloat("Text7");
    load.lowest = base.LeadingInt16("Text4");
    load.highest = base.LeadingInt16("Text5");
    load.wk = NarrowToFloat(static_cast<double>(load.us) * load.bgz * load.uz * load.w0);
    load.wd = NarrowToFloat(static_cast<double>(base.LeadingFloat("Text8")) * load.wk);
    return load;
}

FullNumbers CheckFull(const FullLoad& load, const FormTexts& detail) {
    FullNumbers numbers;
    CheckGlass(load, detail, numbers);
    CountScrews(load, detail, numbers);
    CheckFrame(load, detail, numbers);
    RequireFinite(numbers);
    return numbers;
}

}  // namespace kalvane
