#include "wind/sliding_check.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "wind/sliding_report.h"
#include "wind/wind_tables.h"
#include "wind_kit.h"

namespace kalvane::test {
namespace {

// Load: at 200 m over D, Bgz 1.6 and Uz 1.92; 1.6 × 1.92 = 3.072, and with us = 1.25² and Wo = 1.25 that is
//   3.072 × 1.953125 = 6.
// Glass: t = 32, t^1.6 = 2^8 = 256; Amax = 2 × (0.2 × 256 + 0.8) / 6 = 104 / 6. Area 0.8 × 2.
// Steel: A1 = (3200 − 400) × 400 / 4 = 280000, Q1 = 1.68e6; A2 = 800² / 2, Q2 = 1.92e6; L³ = 1600³ = 4.096e9.
//   I = 2: 64EI = 2.688e7, 60EI = 2.52e7; 2.56e8 + 3.12076190e8 = 5.68076190e8; by 1e8 that is 5.680762.
//   1600 / 180 = 8.888889.
TEST(SlidingReport, IsTheOneWorkedByHand) {
    FormTexts texts(SlidingBoxes());
    SetAll(texts, {{"txtGCMC", "滨海小区"},
                   {"cmbMCLX", "二扇带亮推拉窗"},
                   {"txtMCBH", "TC1518"},
                   {"txtMCCC", "1600*1800"},
                   {"rtxJHYJ", "(1) 设计院的要求\n(2) 当地规定"},
                   {"txtCS", "舟山"},
                   {"txtFYZ", "1.25"},
                   {"cmbDMCCD", "D类"},
                   {"cmbJZGD", "200米"},
                   {"cmbBLZL", "钢化玻璃"},
                   {"txtBLHD", "032"},
                   {"txtBLCD", "800"},
                   {"txtBLGD", "2000"},
                   {"txtSKD", "800"},
                   {"txtSGD", "1400"},
                   {"txtLZKD", "1600"},
                   {"txtLZGD", "400"},
                   {"cmbXGLX", "方钢 □"},
                   {"cmbXGBH", "2.0mm"},
                   {"txtXGGXG", "2.0"},
                   {"cmbFHZTXXS", "1.5625"}});
    EXPECT_EQ(SlidingReport(texts, CheckSliding(texts)), GoldenLines("sliding_report.txt"));
}

TEST(SlidingReport, FollowsBuildingGlassAndLayout) {
    const auto lines = [](Sets sets) {
        const FormTexts texts = Sash(sets);
        std::string all = "\n";
        for (const std::string& line : SlidingReport(texts, CheckSliding(texts))) all += line + "\n";
        return all;
    };
    const struct {
        Sets sets;
        const char* line;
    } kCases[] = {
        {{}, "\n\t\t计算公式：Wk = Bgz * us * uz * Wo\n"},
        {{{"cmbJZWLX", "高层建筑"}}, "\n\t\t计算公式：Wk = Bgz * us * uz * Wo * 110%\n"},
        {{{"txtBLHD", "6"}}, "\n\t\t计算公式：Amax = (0.2 * at^1.8) / Wk\n"},
        {{{"txtBLHD", "7"}}, "\n\t\t计算公式：Amax = (a * (0.2 * t^1.6 + 0.8)) / Wk\n"},
        {{{"txtBLHD", "05"}}, "\n\t\t(7)  玻璃厚度：05\n"},
        {{{"txtBLHD", "05"}}, "\n\t\tt : 玻璃厚度，t = 5mm\n"},
        {{}, "\n\t\t(10) 型钢类型：槽钢 ㄩ\n\t\t(11) 型钢壁厚：1.2mm\n\t\t(12) 型钢惯性矩：1.045\n"},
        {{{"cmbMCLX", "三扇带亮含中梃推拉窗"}, {"txtLZKD", "740"}, {"txtLZGD", "400"}},
         "\n\t\t(10) 亮子尺寸：740*400\n\t\t(11) 型钢类型：槽钢 ㄩ\n"},
        {{{"cmbMCLX", "三扇推拉窗"}}, "\n\t\tL  : 受荷构件长度 = h\n"},
        {{{"rtxJHYJ", ""}}, "\n三、校核依据：\n\n四、抗风压校核：\n"},
    };
    for (const auto& c : kCases) EXPECT_NE(lines(c.sets).find(c.line), std::string::npos) << c.line;
}

TEST(SlidingCheck, LoadFollowsTablesShapeAndBuilding) {
    const struct {
        Sets sets;
        double wk;
    } kCases[] = {
        {{}, 1.69 * 1.3 * 1.17 * 0.8},
        {{{"cmbJZWLX", "高层建筑"}}, 1.69 * 1.3 * 1.17 * 0.8 * 1.1},
        {{{"cmbJZGD", ">=450米"}, {"cmbDMCCD", "D类"}}, 1.51 * 1.3 * 3.12 * 0.8},
        {{{"cmbFHZTXXS", "1.8"}, {"cmbJZGD", "90米"}, {"cmbDMCCD", "C类"}}, 1.62 * 1.8 * 1.62 * 0.8},
        {{{"txtFYZ", "0.55"}, {"cmbJZGD", "30米"}, {"cmbDMCCD", "B类"}}, 1.64 * 1.3 * 1.42 * 0.55},
    };
    for (const auto& c : kCases) EXPECT_FLOAT_EQ(CheckSliding(Sash(c.sets)).wk, static_cast<float>(c.wk));
}

TEST(SlidingCheck, TablesRiseAndGustsFall) {
    for (std::size_t terrain = 0; terrain < kTerrains; ++terrain) {
        for (std::size_t height = 1; height < kHeights; ++height) {
            EXPECT_GE(HeightCoefficient(height, terrain), HeightCoefficient(height - 1, terrain));
            EXPECT_LE(GustCoefficient(height, terrain), GustCoefficient(height - 1, terrain));
            if (terrain == 0) continue;
            EXPECT_LE(HeightCoefficient(height, terrain), HeightCoefficient(height, terrain - 1));
            EXPECT_GE(GustCoefficient(height, terrain), GustCoefficient(height, terrain - 1));
        }
    }
    EXPECT_EQ(ShortText(SteelInertia(1, 2)), "1.0602");
}

// With us = 1.25², Wo = 1.25 / 8, 200 m over D, Wk = 6 / 8 = 0.75. Patterned glass of 1 mm: Amax =
// 0.2 × 0.6 × 1 / 0.75 = 0.16, the area of 400 × 400.
TEST(SlidingCheck, EqualityPassesTheGlassAndFailsTheSteel) {
    const Sets site = {{"cmbFHZTXXS", "1.5625"}, {"txtFYZ", "0.15625"},   {"cmbDMCCD", "D类"},
                       {"cmbJZGD", "200米"},     {"cmbBLZL", "压花玻璃"}, {"txtBLHD", "1"},
                       {"txtBLCD", "400"},       {"txtBLGD", "400"}};
    FormTexts texts = Sash(site);
    EXPECT_EQ(CheckSliding(texts).amax, CheckSliding(texts).area);
    EXPECT_TRUE(CheckSliding(texts).glassPasses);
    texts.Set("txtBLGD", "401");
    EXPECT_FALSE(CheckSliding(texts).glassPasses);
    texts.Set("txtSGD", "0");  // both deflections are 0
    EXPECT_FALSE(CheckSliding(texts).steelPasses);
}

// Wk = 6 as above, I = 1, so 64EI = 1.344e7 and 60EI = 1.26e7. Sizes with a half show which are read as whole
// numbers (ties to even): b = 700.5, h = 1400.5, Lh = 300.5.
TEST(SlidingCheck, SizesAreReadAsEachLayoutReadsThem) {
    const double b = 700.5;
    const double h = 1400.5;
    const double lh = 300.5;
    const auto plain = [](double area, double l) { return 6 * area * l * l * l / 1.344e7 / 1e8; };
    const auto top = [&plain, b](double a1, double l) {
        return plain(a1, l) + 6 * (b * b / 2) * l * l * l / 1.26e7 / 1e8;
    };
    const struct {
        const char* layout;
        double fmax;
        double l;
    } kCases[] = {
        {"二扇推拉窗", plain((2 * 1400 - 700) * 700 / 4.0, h), h},
        {"二扇带亮推拉窗", top((4 * b - lh) * 300 / 4, 2 * b), 2 * b},
        {"二扇带亮含中梃推拉窗", top((2 * b - lh) * 300 / 2, 1400), 1400},
        {"三扇推拉窗", plain((2 * h - b) * b / 4, h), h},
        {"三扇带亮推拉窗", top((4 * b - lh) * lh / 4, 2 * b), 2 * b},
        {"三扇带亮含中梃推拉窗", top((2 * b - lh) * 300 / 2, 2 * b), 2 * b},
    };
    for (const auto& c : kCases) {
        const SlidingNumbers numbers = CheckSliding(Sash({{"cmbMCLX", c.layout},
                                                          {"cmbFHZTXXS", "1.5625"},
                                                          {"txtFYZ", "1.25"},
                                                          {"cmbDMCCD", "D类"},
                                                          {"cmbJZGD", "200米"},
                                                          {"txtSKD", "700.5"},
                                                          {"txtSGD", "1400.5"},
                                                          {"txtLZKD", "1400"},
                                                          {"txtLZGD", "300.5"},
                                                          {"txtXGGXG", "1"}}));
        EXPECT_FLOAT_EQ(numbers.fmax, static_cast<float>(c.fmax)) << c.layout;
        EXPECT_FLOAT_EQ(numbers.permitted, static_cast<float>(c.l / 180)) << c.layout;
    }
}

TEST(SlidingCheck, EmptyBoxesAreRefusedInTheirOrder) {
    const Sets all = {{"cmbFHZTXXS", "风荷载体型系数不能为空!"},
                      {"txtFYZ", "风压值不能为空!"},
                      {"txtBLHD", "玻离厚度不能为空！"},
                      {"txtBLCD", "玻璃宽度不能为空！"},
                      {"txtBLGD", "玻璃高度不能为空！"},
                      {"txtSKD", "扇宽度不能为空!"},
                      {"txtSGD", "扇高度不能为空!"},
                      {"txtLZKD", "亮子宽度不能为空!"},
                      {"txtLZGD", "亮子高度不能为空!"},
                      {"txtXGGXG", "型钢惯性矩不能为空!"}};
    FormTexts texts(SlidingBoxes());
    texts.Set("cmbMCLX", "二扇带亮推拉窗");
    for (const auto& [name, message] : all) texts.Set(name, "");
    for (const auto& [name, message] : all) {
        const auto refusal = SlidingRefusal(texts);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->name, name);
        EXPECT_EQ(refusal->message, message);
        texts.Set(name, "1");
    }
    EXPECT_FALSE(SlidingRefusal(texts));
    texts.Set("txtLZKD", "");
    texts.Set("cmbMCLX", "三扇推拉窗");  // has no top light to ask for
    EXPECT_FALSE(SlidingRefusal(texts));
}

TEST(SlidingCheck, WhatHasNoAnswerIsNamed) {
    const struct {
        Sets sets;
        const char* message;  // its beginning; empty when there is an answer
    } kCases[] = {
        {{{"txtFYZ", "0"}}, "除数为零：风荷载标准值"},
        {{{"txtXGGXG", "0"}}, "除数为零：型钢惯性矩"},
        {{{"txtSKD", "1.2.3"}}, "类型不匹配：“扇宽度”中的“1.2.3”"},
        {{{"txtFYZ", "."}}, "类型不匹配：“基本风压值KN/平方米”中的“.”"},
        {{{"txtBLHD", "40000"}}, "溢出：“玻璃厚度”"},
        {{{"txtSGD", "16384"}}, "溢出：扇高度的两倍"},
        {{{"txtSGD", "16383"}}, ""},
        {{{"cmbMCLX", "三扇推拉窗"}, {"txtSGD", "16384"}}, ""},  // reads it as a float
        {{{"cmbMCLX", "二扇带亮含中梃推拉窗"}, {"txtSKD", "16384"}, {"txtLZKD", "9"}, {"txtLZGD", "9"}},
         "溢出：扇宽度的两倍"},
        // No formula uses Lb, nor h with a top light.
        {{{"cmbMCLX", "二扇带亮推拉窗"}, {"txtSGD", "."}, {"txtLZKD", "."}, {"txtLZGD", "400"}}, ""},
    };
    for (const auto& c : kCases) {
        std::string message;
        try {
            CheckSliding(Sash(c.sets));
        } catch (const NumericError& failure) {
            message = failure.what();
        }
        EXPECT_EQ(message.substr(0, std::string_view(c.message).size()), c.message);
        EXPECT_EQ(message.empty(), *c.message == '\0') << message;
    }
}

TEST(FormTexts, OutsideNamesAndChoicesAreRefusedWithWhatThereIs) {
    FormTexts texts(SlidingBoxes());
    const auto message = [&texts](const char* name, const char* text) -> std::string {
        try {
            texts.Set(name, text);
        } catch (const Error& failure) {
            return failure.what();
        }
        return {};
    };
    EXPECT_NE(message("txtXYZ", "1").find("txtGCMC、cmbMCLX"), std::string::npos);
    EXPECT_EQ(message("cmbDMCCD", "E类"), "“地面粗糙度”没有“E类”这一项。可选：A类、B类、C类、D类。");
    EXPECT_NE(message("cmbDMCCD", ""), "");
    EXPECT_EQ(texts.Text("cmbDMCCD"), "A类");
    texts.Set("cmbXGLX", "方钢 □");
    TakeSteelInertia(texts);
    EXPECT_EQ(texts.Text("txtXGGXG"), "0.9675");
}

}  // namespace
}  // namespace kalvane::test
