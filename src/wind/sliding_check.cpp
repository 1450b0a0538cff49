#include "wind/sliding_check.h"

#include <cmath>
#include <limits>
#include <string>

#include "numeric/error.h"
#include "numeric/number.h"
#include "wind/sliding_form.h"
#include "wind/wind_tables.h"

namespace kalvane {
namespace {

constexpr double kElasticity = 2.1e5;  // of steel, N/mm²
constexpr double kHighBuilding = 1.1;
constexpr std::int16_t kThickGlass = 7;
constexpr double kScale = 1e8;

/// `name` is that of the divisor.
double Quotient(double value, double divisor, const std::string& name) {
    if (divisor == 0) throw NumericError("除数为零：" + name + "为 0，请改正后再校核。");
    return value / divisor;
}

void FindLoad(const FormTexts& texts, SlidingNumbers& numbers) {
    const std::size_t height = texts.Choice("cmbJZGD");
    const std::size_t terrain = texts.Choice("cmbDMCCD");
    numbers.bgz = GustCoefficient(height, terrain);
    numbers.uz = HeightCoefficient(height, terrain);
    numbers.us = texts.Float("cmbFHZTXXS");
    numbers.wo = texts.Float("txtFYZ");
    numbers.isHigh = texts.Choice("cmbJZWLX") != 0;
    double wk = static_cast<double>(numbers.bgz) * numbers.us * numbers.uz * numbers.wo;
    if (numbers.isHigh) wk *= kHighBuilding;
    numbers.wk = NarrowToFloat(wk);
}

void CheckGlass(const FormTexts& texts, SlidingNumbers& numbers) {
    numbers.a = GlassCoefficient(texts.Choice("cmbBLZL"));
    numbers.t = texts.Int16("txtBLHD");
    numbers.isThick = numbers.t >= kThickGlass;
    const double strength = numbers.isThick ? numbers.a * (0.2 * std::pow(numbers.t, 1.6) + 0.8)
                                            : 0.2 * numbers.a * std::pow(numbers.t, 1.8);
    numbers.amax = Quotient(strength, numbers.wk, "风荷载标准值（基本风压或体型系数）");
    numbers.area = texts.Int16("txtBLCD") / 1000.0 * texts.Int16("txtBLGD") / 1000.0;
    numbers.glassPasses = !(numbers.amax < numbers.area);
}

/// A span and what it carries: areas whose load is spread as a trapezoid and as a triangle.
struct Loaded {
    double trapezoid = 0;
    double triangle = 0;
    double length = 0;
};

/// Twice a 16-bit size, which must be one itself.
int Doubled(const FormTexts& texts, std::string_view name) {
    const int doubled = 2 * int{texts.Int16(name)};
    if (doubled > std::numeric_limits<std::int16_t>::max()) {
        throw NumericError("溢出：" + std::string(name == "txtSKD" ? "扇宽度" : "扇高度") +
                           "的两倍超过 32767 毫米，请改正后再校核。");
    }
    return doubled;
}

/// A stile between two rails.
Loaded Stile(const FormTexts& texts, bool isInteger) {
    double b = 0;
    double twiceH = 0;
    if (isInteger) {
        b = texts.Int16("txtSKD");
        twiceH = Doubled(texts, "txtSGD");
    } else {
        b = texts.Float("txtSKD");
        twiceH = 2 * static_cast<double>(texts.Float("txtSGD"));
    }
    return {(twiceH - b) * b / 2 / 2, 0, texts.Float("txtSGD")};
}

/// The transom below a top light.
Loaded Transom(const FormTexts& texts, const SlidingLayout& layout) {
    const double b = texts.Float("txtSKD");
    const double lh = texts.Float("txtLZGD");
    const bool isFloat = layout.sashes == 3 && !layout.hasMullion;
    const double factor = isFloat ? lh : texts.Int16("txtLZGD");
    Loaded loaded;
    loaded.trapezoid = layout.hasMullion ? (2 * b - lh) * factor / 2 : (4 * b - lh) * factor / 2 / 2;
    loaded.triangle = b * b / 2;
    const bool isIntegerLength = layout.sashes == 2 && layout.hasMullion;
    loaded.length = isIntegerLength ? Doubled(texts, "txtSKD") : 2 * b;
    return loaded;
}

void CheckSteel(const FormTexts& texts, SlidingNumbers& numbers) {
    const SlidingLayout layout = LayoutOf(texts);
    const Loaded loaded = layout.hasTopLight ? Transom(texts, layout) : Stile(texts, layout.sashes == 2);
    numbers.i = texts.Float("txtXGGXG");
    const double ei = kElasticity * numbers.i;
    const double cube = loaded.length * loaded.length * loaded.length;
    double deflection = Quotient(numbers.wk * loaded.trapezoid * cube, 64 * ei, "型钢惯性矩");
    if (layout.hasTopLight) deflection += numbers.wk * loaded.triangle * cube / (60 * ei);
    numbers.fmax = NarrowToFloat(deflection / kScale);
    numbers.permitted = NarrowToFloat(loaded.length / 180);
    numbers.steelPasses = numbers.fmax < numbers.permitted;
}

}  // namespace

SlidingNumbers CheckSliding(const FormTexts& texts) {
    SlidingNumbers numbers;
    FindLoad(texts, numbers);
    CheckGlass(texts, numbers);
    CheckSteel(texts, numbers);
    return numbers;
}

}  // namespace kalvane
