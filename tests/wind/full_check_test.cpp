#include "wind/full_check.h"

#include "numeric/error.h"
#include "wind/full_report.h"
#include "wind_kit.h"

namespace kalvane::test {
namespace {

FullNumbers Numbers(const FullTexts& texts) {
    return CheckFull(FindFullLoad(texts.base), texts.detail);
}

// Load: 1.5 × 2 × 1 (10 m over B) × 0.5 = 1.5, and times 1.5 that is 2.25.
// Area: t = 32, t^1.6 = 256; 1.6 × (0.2 × 256 + 0.8) / 1.5 = 83.2 / 1.5.
// Bending: 800² / 32² = 625; 625 × 6 × 0.1 × 2.25e-6 = 8.4375e-4.
// Temperature: 72000 × (1e-5 × 50 − (2 × 1.55 − 3) / 1000) = 72000 × 4e-4 = 28.8, above 19.5.
// Deflection: D = 72000 × 32³ / 11.52 = 6250 × 32768 = 2.048e8; 800^4 / D = 4.096e11 / 2.048e8 = 2000;
//   0.00528392 × 2000 / 1000.
// Screws: 0.00225 × 1000 × 1200 = 2700; N = 2700 / (3.1415926 × 35); Nb = N / 4.4, Nh = 1.2 × Nb.
// Frame: qb = 0.00225 × 1200, qh = 0.00225 × 1000; Mzb = 2.7e6 / 8, Mzh = 2.25 × 1.44e6 / 8; Q = 2700 / 2.
//   337500 / 23100, 405000 / 153499.5; 1350 × 24000 / 9.8e6, 1350 × 98745 / 1.47653e8.
TEST(FullReport, IsTheOneWorkedByHand) {
    const FullTexts texts = Window({{"Text2", "舟山"},
                                    {"Text1", "C1215"},
                                    {"Text3", "0.5"},
                                    {"Combo3", "10"},
                                    {"Combo1", "超高层建筑物"},
                                    {"Text4", "-10"},
                                    {"Text5", "40"},
                                    {"Text6", "2"},
                                    {"Text7", "1.5"},
                                    {"Text8", "1.5"}},
                                   {{"Text1", "1000"},
                                    {"Text2", "1200"},
                                    {"Text3", "65推拉框"},
                                    {"Text4", "65"},
                                    {"Text9", "方钢"},
                                    {"Text10", "10"},
                                    {"Text6", "单片玻璃"},
                                    {"Combo1", "半钢化玻璃"},
                                    {"Text7", "32"},
                                    {"Text8", "1.55"},
                                    {"Text11", "800"},
                                    {"Text12", "1000"},
                                    {"Text13", "2"},
                                    {"Combo2", "0.50"}});
    const FullLoad load = FindFullLoad(texts.base);
    const std::vector<std::string> lines = FullReport(texts, load, CheckFull(load, texts.detail));
    EXPECT_EQ(lines.size(), 217U);
    EXPECT_EQ(lines, GoldenLines("full_report.txt"));
}

TEST(FullReport, GlassDecidesStrengthLinesAndLimits) {
    const struct {
        Sets detail;
        const char* strength;
        const char* limit;
        const char* area;
    } kCases[] = {
        {{},
         "   大面上的强度：28 N/mm^2",
         "       弯曲强度设计值:19.5 N/mm^2",
         "       Amax = (0.2*a*t^1.8)/Wk"},
        {{{"Combo1", "钢化玻璃"}, {"Text7", "6.5"}},
         "   大面上的强度：84 N/mm^2",
         "       弯曲强度设计值:84 N/mm^2",
         "       Amax = (a*(0.2*t^1.6+0.8))/Wk"},
        {{{"Combo1", "半钢化玻璃"}, {"Text7", "6"}},
         "   大面上的强度：28 N/mm^2",
         "       弯曲强度设计值:19.5 N/mm^2",
         "       Amax = (0.2*a*t^1.8)/Wk"},
    };
    for (const auto& c : kCases) {
        const FullTexts texts = Window({}, c.detail);
        const FullLoad load = FindFullLoad(texts.base);
        const auto lines = FullReport(texts, load, CheckFull(load, texts.detail));
        EXPECT_EQ(lines[38], c.strength);
        EXPECT_EQ(lines[44], c.area);
        EXPECT_EQ(lines[66], c.limit);
    }
}

// Wk = 1.5 × 1 × 1 × 0.5 = 0.75 at 10 m over B, patterned glass of 1 mm: Amax = 0.2 × 0.6 / 0.75 = 0.16, the
// area of 160 × 1000. Temperature: 72000 × (1e-5 × T − 0) = 0.72 × T never meets 19.5, but with c = 1.5 and a
// span of 27 it is 19.44, of 28 it is 20.16.
TEST(FullCheck, LimitsCountAsLaidDown) {
    const Sets site = {{"Text3", "0.5"}, {"Text6", "1"}, {"Text7", "1.5"}, {"Combo3", "10"}};
    const Sets pane = {{"Combo1", "压花玻璃"}, {"Text7", "1"}, {"Text11", "160"}, {"Text12", "1000"}};
    EXPECT_EQ(Numbers(Window(site, pane)).area.value, Numbers(Window(site, pane)).area.limit);
    EXPECT_FALSE(Numbers(Window(site, pane)).area.passes);
    const auto temperature = [](const char* highest) {
        return Numbers(Window({{"Text4", "0"}, {"Text5", highest}}, {{"Text8", "1.5"}})).temperature;
    };
    EXPECT_TRUE(temperature("27").passes);
    EXPECT_FALSE(temperature("28").passes);
    EXPECT_DOUBLE_EQ(temperature("28").value, 20.16);
    // u = 0.00528392 × 400^4 / 6250 / 1000 = 21.6 and with 450^4 = 34.7, beside 30.
    EXPECT_TRUE(Numbers(Window(site, pane)).deflection.passes);
    EXPECT_FALSE(
        Numbers(Window(site, {{"Text7", "1"}, {"Text11", "450"}, {"Text12", "450"}})).deflection.passes);
}

TEST(FullCheck, TextsReadAsTheirLeadingNumber) {
    const FullTexts texts = Window({{"Text3", "0.5kN"}, {"Text4", "-7.5度"}, {"Text5", "高"}},
                                   {{"Text7", "5mm"}, {"Text11", "888"}, {"Text12", "771"}, {"Text8", "x"}});
    const FullLoad load = FindFullLoad(texts.base);
    EXPECT_EQ(load.w0, 0.5F);
    EXPECT_EQ(load.lowest, -8);  // ties to even
    EXPECT_EQ(load.highest, 0);
    const FullNumbers numbers = CheckFull(load, texts.detail);
    EXPECT_EQ(numbers.shorter, 771);
    EXPECT_EQ(numbers.longer, 888);
    EXPECT_EQ(numbers.c, 0);
    EXPECT_EQ(EdgeRatio("771", "1542"), "0.5");
    EXPECT_EQ(EdgeRatio("1542", "771"), "0.5");
    EXPECT_EQ(EdgeRatio("", "771") + EdgeRatio("771", "") + EdgeRatio("0", "0"), "");
}

TEST(FullCheck, LastHeightIsTheTablesRowOf400Metres) {
    EXPECT_EQ(FindFullLoad(Window({{"Combo3", ">=400"}, {"Combo2", "C类"}}).base).uz, 3.12F);
    EXPECT_EQ(FindFullLoad(Window({{"Combo3", "350"}, {"Combo2", "C类"}}).base).uz, 2.94F);
}

TEST(FullCheck, WhatIsMissingIsRefusedInItsOrder) {
    FormTexts base(FullBaseBoxes());
    base.Set("Text6", "");
    base.Set("Text7", "");
    const struct {
        const char* name;
        const char* message;
        const char* text;
    } kCases[] = {{"Combo1", "数据不能为空！", "超高层建筑物"},
                  {"Combo2", "数据不能为空！", "C类"},
                  {"Combo3", "数据不能为空！", "20"},
                  {"Text6", "阵风系数不能为空!", "1.9"},
                  {"Text7", "风荷载体型系数不能为空！", "1"}};
    for (const auto& c : kCases) {
        const auto refusal = FullRefusal(base);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->name, c.name);
        EXPECT_EQ(refusal->message, c.message);
        base.Set(c.name, c.text);
    }
    EXPECT_FALSE(FullRefusal(base));
}

TEST(FullCheck, AnySingleZeroHasNoAnswer) {
    for (const char* box : {"Text1", "Text2", "Text7", "Text11", "Text12", "Text10", "Text13"}) {
        for (const char* text : {"0", "", "无", "-5"}) {
            EXPECT_THROW(Numbers(Window({}, {{box, text}})), NumericError) << box << text;
        }
    }
    EXPECT_THROW(Numbers(Window({{"Text7", "0"}})), NumericError);
    EXPECT_THROW(Numbers(Window({}, {{"Text11", "1e200"}, {"Text12", "1e200"}})), NumericError);
    EXPECT_THROW(FindFullLoad(Window({{"Text5", "40000"}}).base), NumericError);
    EXPECT_THROW(Numbers(Window({{"Text4", "-20000"}, {"Text5", "20000"}})), NumericError);
}

}  // namespace
}  // namespace kalvane::test
