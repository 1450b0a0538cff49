// The re-check against closed forms and published tables.

#include "wind/recheck.h"

#include <cmath>

#include "wind/beam.h"
#include "wind/full_recheck.h"
#include "wind/load_chart.h"
#include "wind/plate.h"
#include "wind/sliding_recheck.h"
#include "wind_kit.h"

namespace kalvane::test {
namespace {

constexpr double kPi = 3.14159265358979;

// Beams on two supports: an even load 5qL⁴/384EI, a triangle WL³/60EI with W = qL/2, a trapezoid with ramps c
// q(5L² − 4c²)²/1920EI (tables of structural mechanics, e.g. 建筑结构静力计算手册, chapter 2).
TEST(Beam, DeflectionIsThatOfTheClosedForms) {
    const double q = 2.5;
    const double l = 1400;
    const double ei = 2.1e5 * 10450;
    EXPECT_NEAR(MidspanDeflection(l, {{0, q, l, q}}, ei), 5 * q * std::pow(l, 4) / (384 * ei), 1e-9);
    // Edge loads: a pane at least as deep as wide hands on a triangle of the peak pressure × width / 2.
    std::vector<BeamLoad> loads;
    AddEdgeLoad(loads, 0, l, 2000, q / (l / 2));
    EXPECT_NEAR(MidspanDeflection(l, loads, ei), q * std::pow(l, 4) / (120 * ei), 1e-9);
    loads.clear();
    const double c = 375;
    AddEdgeLoad(loads, 0, l, 2 * c, q / c);
    EXPECT_NEAR(MidspanDeflection(l, loads, ei), q * std::pow(5 * l * l - 4 * c * c, 2) / (1920 * ei), 1e-9);
    // Two equal loads side by side give twice the deflection of either.
    std::vector<BeamLoad> halves;
    AddEdgeLoad(halves, 0, l / 2, 900, 1e-3);
    const double left = MidspanDeflection(l, halves, ei);
    AddEdgeLoad(halves, l / 2, l / 2, 900, 1e-3);
    EXPECT_NEAR(MidspanDeflection(l, halves, ei), 2 * left, 1e-9);
}

/// Navier's series for the middle of a plate with edges 1 and 1 / ratio under an even load: deflection and
/// the moment across the shorter edge, by load and stiffness of 1.
struct Navier {
    double deflection = 0;
    double moment = 0;
};
Navier NavierSum(double ratio) {
    constexpr double kPoisson = 0.2;
    Navier sum;
    for (int m = 1; m < 400; m += 2) {
        for (int n = 1; n < 400; n += 2) {
            const double k = m * m + n * n * ratio * ratio;
            const double sign = (m + n) / 2 % 2 == 1 ? 1 : -1;
            const double w = sign * 16 / (std::pow(kPi, 6) * m * n * k * k);
            sum.deflection += w;
            sum.moment += w * kPi * kPi * (m * m + kPoisson * n * n * ratio * ratio);
        }
    }
    return sum;
}

TEST(Plate, CoefficientsAreThoseOfThePlateTheory) {
    for (const double ratio : {0.25, 0.29, 0.37, 0.45, 0.5, 0.575, 0.68, 0.72, 0.868, 0.93, 1.0}) {
        const Navier navier = NavierSum(ratio);
        EXPECT_NEAR(BendingCoefficient(ratio) / navier.moment, 1, 0.008) << ratio;
        EXPECT_NEAR(DeflectionCoefficient(ratio) / navier.deflection, 1, 0.012) << ratio;
    }
    // Timoshenko and Woinowsky-Krieger, Theory of Plates and Shells, table 8: longer by shorter edge, α.
    const struct {
        double edges;
        double alpha;
    } kPublished[] = {{1.0, 0.00406}, {1.2, 0.00564}, {1.4, 0.00705}, {1.6, 0.00830}, {2.0, 0.01013}};
    for (const auto& c : kPublished) EXPECT_NEAR(DeflectionCoefficient(1 / c.edges) / c.alpha, 1, 0.006);
    // A strip: 1/8 of load × span², 5/384 of load × span⁴.
    EXPECT_DOUBLE_EQ(BendingCoefficient(0), 0.125);
    EXPECT_NEAR(DeflectionCoefficient(0), 5.0 / 384, 1e-5);
}

// The sash of 750 × 1400: Wk = 2.056392 kN/m², A = (2800 − 750) × 750 / 4 = 384375 mm², Q = 790.43 N;
// 790.43 × 1400³ / (64 × 2.1e5 × 10450) = 15.443 mm beside 1400 / 180 = 7.7778 mm. The report has a tenth.
TEST(SlidingRecheck, SaysSoWhereTheReportIsOnTheUnsafeSide) {
    const FormTexts texts = Sash();
    const SlidingNumbers numbers = CheckSliding(texts);
    EXPECT_TRUE(numbers.steelPasses);
    const Recheck recheck = RecheckSliding(texts, numbers);
    const RecheckRow& steel = recheck.rows[2];
    EXPECT_NEAR(steel.value, 15.443, 5e-4);
    EXPECT_EQ(steel.ResultText(), "F = 15.443 mm");
    EXPECT_EQ(steel.LimitText(), "< 7.7778 mm");
    EXPECT_EQ(steel.VerdictText(), "报告合格，按一致单位复核不合格");
    // By the closed form of the trapezoid: q = 2.056392e-3 × 375 N/mm, c = 375.
    EXPECT_NEAR(recheck.rows[3].value,
                2.056392e-3 * 375 * std::pow(5 * 1400 * 1400 - 4 * 375 * 375, 2) / (1920 * 2.1e5 * 10450),
                1e-4);
    EXPECT_TRUE(recheck.Differs());
    EXPECT_TRUE(recheck.warnings.empty());
    // Ten times the inertia is enough: nothing differs any more.
    const FormTexts stiff = Sash({{"txtXGGXG", "30"}});
    const Recheck same = RecheckSliding(stiff, CheckSliding(stiff));
    EXPECT_FALSE(same.Differs());
    EXPECT_TRUE(same.Passes());
}

TEST(SlidingRecheck, KeepsToTheReportsFormulaInEveryLayout) {
    for (const char* layout : {"二扇推拉窗", "二扇带亮推拉窗", "二扇带亮含中梃推拉窗", "三扇推拉窗",
                               "三扇带亮推拉窗", "三扇带亮含中梃推拉窗"}) {
        const FormTexts texts = Sash({{"cmbMCLX", layout}, {"txtLZKD", "1500"}, {"txtLZGD", "400"}});
        const SlidingNumbers numbers = CheckSliding(texts);
        const Recheck recheck = RecheckSliding(texts, numbers);
        EXPECT_NEAR(recheck.rows[2].value, 10 * numbers.fmax, 1e-4) << layout;
        // Where the span is real, the pane loads give nearly the same.
        const bool isTripleTop = std::string(layout).starts_with("三扇带亮");
        const double tolerance = isTripleTop ? 10 : 0.2;
        EXPECT_NEAR(recheck.rows[3].value / recheck.rows[2].value, 1, tolerance) << layout;
        EXPECT_NEAR(recheck.rows[3].limit, (isTripleTop ? 2250 : recheck.rows[2].limit * 180) / 180, 1e-9);
    }
}

TEST(SlidingRecheck, WarnsWhereInputsLeaveTheFormulas) {
    const struct {
        Sets sets;
        const char* warning;
    } kCases[] = {
        {{{"txtSKD", "1500"}}, "扇宽度 1500 mm 大于扇高度 1400 mm"},
        {{{"cmbMCLX", "二扇带亮推拉窗"}, {"txtLZKD", "9"}, {"txtLZGD", "1600"}},
         "亮子高度 1600 mm 大于扇宽度的两倍"},
        {{{"cmbMCLX", "二扇带亮含中梃推拉窗"}, {"txtLZKD", "9"}, {"txtLZGD", "800"}},
         "亮子高度 800 mm 大于扇宽度 750"},
        {{{"cmbMCLX", "三扇带亮推拉窗"}, {"txtLZKD", "9"}, {"txtLZGD", "400"}},
         "三扇带亮窗的中横框长 3b = 2250 mm"},
        {{{"cmbMCLX", "二扇带亮推拉窗"}, {"txtSGD", "."}, {"txtLZKD", "9"}, {"txtLZGD", "400"}},
         "扇高度不是数字"},
        {{{"txtFYZ", "0.25"}}, "基本风压 0.25 kN/m² 小于"},
        {{{"txtBLHD", "2"}}, "玻璃厚度 2 mm 不在"},
        {{{"txtBLCD", "760"}}, "玻璃尺寸大于窗扇尺寸"},
        {{{"cmbBLZL", "中空玻璃"}}, "夹层、中空玻璃"},
    };
    for (const auto& c : kCases) {
        const FormTexts texts = Sash(c.sets);
        std::string all;
        for (const std::string& warning : RecheckSliding(texts, CheckSliding(texts)).warnings) all += warning;
        EXPECT_NE(all.find(c.warning), std::string::npos) << c.warning << " in " << all;
    }
}

// The preset window, Wk = 2.18112, Wd = 2.290176 kN/m², glass 771 × 888 × 5: m = 0.0576 − 0.3649 × 0.0048 =
// 0.055849, σ = 6 × 0.055849 × 2.290176e-3 × 771² / 25 = 18.247 N/mm². μ = 0.00547 − 0.3649 × 0.00051 =
// 0.0052839, D = 781250, u = 0.0052839 × 2.18112e-3 × 771⁴ / D = 5.2127 mm beside 771 / 60 = 12.85.
// N = 2.290176e-3 × 855 × 950 / (π × 4 × 130) = 1.1387.
TEST(FullRecheck, WorksInNewtonsAndMillimetres) {
    const FullTexts texts = Window();
    const FullLoad load = FindFullLoad(texts.base);
    const Recheck recheck = RecheckFull(texts, load, CheckFull(load, texts.detail));
    EXPECT_NEAR(recheck.rows[2].value, 18.247, 2e-3);
    EXPECT_EQ(recheck.rows[2].limit, 28);
    EXPECT_NEAR(recheck.rows[4].value, 5.2127, 1e-3);
    EXPECT_EQ(recheck.rows[4].limit, 12.85);
    EXPECT_NEAR(recheck.rows[5].value, 1.1387, 1e-4);
    EXPECT_FALSE(recheck.Differs());
    std::string all;
    for (const std::string& warning : recheck.warnings) all += warning;
    for (const char* warning :
         {"阵风系数 1.92 与 GB 50009-2001 表 7.5.1 的 1.64 不同", "设计值系数 1.05 小于",
          "比值 0.25 不是这块玻璃的 0.86824，表中最接近的是 0.85", "玻璃挠度大于厚度"}) {
        EXPECT_NE(all.find(warning), std::string::npos) << all;
    }
}

// Twice the pane: 1542 × 1776 × 5 at the same load: σ = 4 × 18.247 = 72.99 above 28, while the report has
// 6 × 0.123 × 2.29e-6 × 1542² / 25 = 0.161.
TEST(FullRecheck, SaysSoWhereTheReportIsOnTheUnsafeSide) {
    const FullTexts texts = Window({}, {{"Text11", "1542"}, {"Text12", "1776"}});
    const FullLoad load = FindFullLoad(texts.base);
    const Recheck recheck = RecheckFull(texts, load, CheckFull(load, texts.detail));
    EXPECT_NEAR(recheck.rows[2].value, 72.99, 0.01);
    EXPECT_EQ(recheck.rows[2].VerdictText(), "报告合格，按一致单位复核不合格");
    EXPECT_NEAR(recheck.rows[4].value, 16 * 5.2127, 0.01);  // beside 25.7; the report has 38.2 beside 30
    EXPECT_EQ(recheck.rows[4].VerdictText(), "不合格");
}

TEST(LoadChart, HoldsEveryTerrainAndTheChosenPoint) {
    const LoadChart chart = SlidingLoadChart(Sash({{"cmbJZGD", "30米"}, {"cmbDMCCD", "B类"}}));
    ASSERT_TRUE(chart.chosen);
    EXPECT_EQ(chart.chosen->height, 4U);
    EXPECT_EQ(chart.chosen->terrain, 1U);
    EXPECT_NEAR(chart.wk[1][4], 1.64 * 1.42 * 1.3 * 0.8, 1e-6);
    EXPECT_NEAR(chart.Highest(), 1.51 * 3.12 * 1.3 * 0.8, 1e-6);  // D, from 450 m on
    EXPECT_EQ(SlidingLoadChart(Sash({{"txtFYZ", "."}})).wk[0].size(), 0U);
    const LoadChart full = FullLoadChart(Window().base);
    EXPECT_NEAR(full.wk[1][4], 1.92 * 1.42 * 0.8, 1e-6);
}

}  // namespace
}  // namespace kalvane::test
