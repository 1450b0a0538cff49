#include "wind/sliding_recheck.h"

#include <algorithm>
#include <optional>

#include "numeric/error.h"
#include "numeric/number.h"
#include "wind/beam.h"
#include "wind/sliding_form.h"

namespace kalvane {
namespace {

constexpr double kElasticity = 2.1e5;  // of steel, N/mm²
constexpr double kHighBuilding = 1.1;
constexpr double kPerMillimetre = 1e-3;  // N/mm² of 1 kN/m²
constexpr double kCentimetres4 = 1e4;    // mm^4 of 1 cm^4
constexpr double kSlenderness = 180;     // span by permitted deflection

std::string Millimetres(double value) {
    return Figure(value) + " mm";
}

/// The sizes the deflection depends on, mm.
struct Sizes {
    double b = 0;
    std::optional<double>
        h;  ///< unknown when the box holds no number; a top light's formula does not need it
    double lh = 0;
};

std::optional<double> NumberIn(const FormTexts& texts, std::string_view name) {
    try {
        return ParseNumber(texts.Text(name));
    } catch (const NumericError&) {
        return std::nullopt;
    }
}

Sizes SizesOf(const FormTexts& texts, const SlidingLayout& layout) {
    Sizes sizes{.b = ParseNumber(texts.Text("txtSKD")), .h = NumberIn(texts, "txtSGD")};
    if (layout.hasTopLight) sizes.lh = ParseNumber(texts.Text("txtLZGD"));
    return sizes;
}

RecheckRow LoadRow(const SlidingNumbers& numbers) {
    RecheckRow row{.sign = "Wk", .check = "风荷载标准值", .unit = "kN/m²"};
    row.formula = "Wk = βgz·μs·μz·W0";
    row.numbers = Figure(numbers.bgz) + " × " + Figure(numbers.us) + " × " + Figure(numbers.uz) + " × " +
                  Figure(numbers.wo);
    row.value = static_cast<double>(numbers.bgz) * numbers.us * numbers.uz * numbers.wo;
    if (numbers.isHigh) {
        row.formula += "·1.1";
        row.numbers += " × 1.1";
        row.value *= kHighBuilding;
    }
    return row;
}

RecheckRow SteelRow(const SlidingNumbers& numbers, double span) {
    return {.sign = "F",
            .check = "型钢挠度",
            .unit = "mm",
            .relation = "<",
            .limit = span / kSlenderness,
            .told = numbers.steelPasses};
}

/// N·mm²
double Stiffness(const SlidingNumbers& numbers) {
    return kElasticity * numbers.i * kCentimetres4;
}

/// The report's own formula, in N and mm.
RecheckRow FormulaRow(const SlidingNumbers& numbers, const SlidingLayout& layout, const Sizes& sizes) {
    const double w = numbers.wk * kPerMillimetre;
    const double ei = Stiffness(numbers);
    const double b = sizes.b;
    const double span = layout.hasTopLight ? 2 * b : *sizes.h;
    const std::string cube = Figure(span) + "³ / (";
    const std::string steel = " × 210000 × " + Figure(numbers.i * kCentimetres4) + ")";
    RecheckRow row = SteelRow(numbers, span);
    row.check = "型钢挠度，按报告的公式";
    const double lh = sizes.lh;
    const double area = !layout.hasTopLight ? (2 * *sizes.h - b) * b / 4
                        : layout.hasMullion ? (2 * b - lh) * lh / 2
                                            : (4 * b - lh) * lh / 4;
    row.formula = "F = Q·L³ / 64EI";
    row.numbers = Figure(w * area) + " × " + cube + "64" + steel;
    row.value = w * area * span * span * span / (64 * ei);
    if (layout.hasTopLight) {
        const double q2 = w * b * b / 2;
        row.formula = "F = Q1·L³ / 64EI + Q2·L³ / 60EI";
        row.numbers += " + " + Figure(q2) + " × " + cube + "60" + steel;
        row.value += q2 * span * span * span / (60 * ei);
    }
    return row;
}

/// Under the loads of the panes, each divided by lines of 45° from its corners.
RecheckRow PaneRow(const SlidingNumbers& numbers, const SlidingLayout& layout, const Sizes& sizes) {
    const double w = numbers.wk * kPerMillimetre;
    const double ei = Stiffness(numbers);
    const double b = sizes.b;
    const double h = *sizes.h;
    double span = h;
    std::vector<BeamLoad> loads;
    std::string panes;
    if (layout.hasTopLight) {
        span = layout.sashes * b;
        for (int sash = 0; sash < layout.sashes; ++sash) {
            AddEdgeLoad(loads, sash * b, b, h, w);
            if (layout.hasMullion) AddEdgeLoad(loads, sash * b, b, sizes.lh, w);
        }
        if (!layout.hasMullion) AddEdgeLoad(loads, 0, span, sizes.lh, w);
        panes = std::to_string(layout.sashes) + " 扇 " + Figure(b) + "×" + Figure(h) + "，亮子 " +
                (layout.hasMullion ? std::to_string(layout.sashes) + " 格 " + Figure(b) : Figure(span)) +
                "×" + Figure(sizes.lh);
    } else {
        AddEdgeLoad(loads, 0, h, b, w);
        panes = "扇 " + Figure(b) + "×" + Figure(h);
    }
    RecheckRow row = SteelRow(numbers, span);
    row.sign = "F45";
    row.check = "型钢挠度，按各格玻璃 45° 分布的荷载";
    row.formula = "F45 = 1/(24EI) × ∫ q(x)·x·(3L² − 4x²) dx，x 从 0 到 L/2";
    row.numbers = panes + "，Wk = " + Figure(w) + " N/mm²，L = " + Millimetres(span) + "，EI = 210000 × " +
                  Figure(numbers.i * kCentimetres4) + " N·mm²";
    row.value = MidspanDeflection(span, loads, ei);
    return row;
}

void WarnOfSizes(Recheck& recheck, const FormTexts& texts, const SlidingLayout& layout, const Sizes& sizes) {
    const auto warn = [&recheck](std::string text) { recheck.warnings.push_back(std::move(text)); };
    const double b = sizes.b;
    if (sizes.h && b > *sizes.h) {
        warn("扇宽度 " + Millimetres(b) + " 大于扇高度 " + Millimetres(*sizes.h) +
             "，报告的荷载面积公式不适用，以 45° 分布荷载的一行为准。");
    }
    if (layout.hasTopLight) {
        const double widest = layout.hasMullion ? b : 2 * b;
        if (sizes.lh > widest) {
            warn("亮子高度 " + Millimetres(sizes.lh) + " 大于" +
                 (layout.hasMullion ? "扇宽度 " : "扇宽度的两倍 ") + Millimetres(widest) +
                 "，报告的荷载面积公式不适用，以 45° 分布荷载的一行为准。");
        }
        if (layout.sashes == 3) {
            warn("三扇带亮窗的中横框长 3b = " + Millimetres(3 * b) +
                 "，报告按 L = 2b = " + Millimetres(2 * b) + " 计算，以 45° 分布荷载的一行为准。");
        }
        warn("中横框还承受竖梃端部的集中力，报告和复核都没有计入。");
    }
    const bool isWide = *NumberIn(texts, "txtBLCD") > b;
    if (isWide || (sizes.h && *NumberIn(texts, "txtBLGD") > *sizes.h)) warn("玻璃尺寸大于窗扇尺寸。");
}

}  // namespace

Recheck RecheckSliding(const FormTexts& texts, const SlidingNumbers& numbers) {
    const SlidingLayout layout = LayoutOf(texts);
    const Sizes sizes = SizesOf(texts, layout);
    Recheck recheck;
    recheck.rows.push_back(LoadRow(numbers));
    recheck.rows.push_back(AreaRow(numbers.a, numbers.t, numbers.wk, numbers.area, numbers.glassPasses));
    recheck.rows.push_back(FormulaRow(numbers, layout, sizes));
    WarnOfPressure(recheck, numbers.wo);
    WarnOfGlass(recheck, texts.Choice("cmbBLZL"), numbers.t);
    WarnOfSizes(recheck, texts, layout, sizes);
    if (sizes.h) {
        recheck.rows.push_back(PaneRow(numbers, layout, sizes));
    } else {
        recheck.warnings.emplace_back("扇高度不是数字，不能按 45° 分布的荷载复核型钢挠度。");
    }
    return recheck;
}

}  // namespace kalvane
