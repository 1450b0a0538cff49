#include "wind/window_run.h"

#include "support/temp_folder.h"
#include "wind/take_window.h"
#include "wind/wind_settings.h"
#include "wind_kit.h"

namespace kalvane::test {
namespace {

ProjectWindow Slider(const char* mark, double sashes) {
    return {"海景",
            mark,
            1500,
            1800,
            {{"B", 1500}, {"H", 1800}, {"h1", 500}, {"h2", 1300}},
            {{"钢化玻璃6mm", 630, 1090, sashes}},
            750,
            1240};
}

TEST(TakeWindow, SlidingWindowFillsItsBoxesAndNoOthers) {
    FormTexts texts = Sash({{"txtCS", "舟山"}, {"txtLZKD", "9"}, {"cmbBLZL", "夹丝玻璃"}});
    EXPECT_TRUE(TakeSlidingWindow(texts, Slider("C1", 2)).empty());
    const struct {
        const char* box;
        const char* text;
    } kBoxes[] = {{"txtGCMC", "海景"},       {"txtMCBH", "C1"},   {"txtMCCC", "1500*1800"},
                  {"cmbMCLX", "二扇推拉窗"}, {"txtSKD", "750"},   {"txtSGD", "1240"},
                  {"txtBLCD", "630"},        {"txtBLGD", "1090"}, {"txtBLHD", "6"},
                  {"cmbBLZL", "钢化玻璃"},   {"txtLZKD", ""},     {"txtCS", "舟山"}};
    for (const auto& c : kBoxes) EXPECT_EQ(texts.Text(c.box), c.text) << c.box;

    ProjectWindow withLight = Slider("C2", 3);
    withLight.panes.push_back({"中空玻璃5+9A+5", 1430, 447, 1});
    const TakeNotes notes = TakeSlidingWindow(texts, withLight);
    EXPECT_EQ(texts.Text("cmbMCLX"), "三扇带亮推拉窗");
    EXPECT_EQ(texts.Text("txtLZKD"), "1500");  // label B is nearest to 1430, h1 to 447
    EXPECT_EQ(texts.Text("txtLZGD"), "500");
    EXPECT_TRUE(notes.empty());  // 0.64 m² beside 0.69
    withLight.panes.back() = {"中空玻璃5+9A+5", 700, 1400, 2};
    EXPECT_NE(TakeSlidingWindow(texts, withLight)[0].find("700×1400 比扇的大"), std::string::npos);
    EXPECT_EQ(texts.Text("cmbMCLX"), "三扇带亮含中梃推拉窗");
    EXPECT_NE(TakeSlidingWindow(texts, Slider("C4", 4))[0].find("有 4 扇"), std::string::npos);
}

TEST(TakeWindow, WhatTheProjectDoesNotTellIsEmptied) {
    FormTexts texts = Sash();
    const TakeNotes notes = TakeSlidingWindow(texts, {"", "C9", 0, 0, {}, {{"白玻", 600, 900, 1}}, 0, 0});
    EXPECT_NE(notes[0].find("扇B"), std::string::npos);
    EXPECT_EQ(texts.Text("txtSKD") + texts.Text("txtMCCC") + texts.Text("txtBLHD"), "");
    EXPECT_EQ(texts.Text("txtBLCD"), "600");
    EXPECT_EQ(texts.Text("cmbBLZL"), "浮法玻璃");
}

TEST(TakeWindow, FullCheckTakesTheLargestPaneAndItsRatio) {
    FullTexts texts = Window();
    ProjectWindow window = Slider("C1", 2);
    window.panes.push_back({"中空玻璃5+9A+5", 1430, 700, 1});  // 0.4895
    TakeFullWindow(texts, window);
    EXPECT_EQ(texts.base.Text("Text1"), "海景 C1");
    EXPECT_EQ(texts.detail.Text("Text1") + "*" + texts.detail.Text("Text2"), "1500*1800");
    EXPECT_EQ(texts.detail.Text("Text11") + "*" + texts.detail.Text("Text12"), "1430*700");
    EXPECT_EQ(texts.detail.Text("Text7"), "5");
    EXPECT_EQ(texts.detail.Text("Combo1"), "中空玻璃");
    EXPECT_EQ(texts.detail.Text("Combo2"), "0.50");
}

TEST(WindowRun, WindowsWithoutAReportAreToldWithTheReason) {
    ProjectWindow fixed = Slider("C3", 1);
    fixed.sashWidth = 0;
    const CheckRun run = RunSlidingChecks(Sash(), {Slider("C1", 2), fixed, Slider("C2", 4)});
    ASSERT_EQ(run.checks.size(), 2U);
    EXPECT_EQ(run.checks[0].window, "海景 C1");
    EXPECT_EQ(run.skipped, std::vector<std::string>{"C3：扇宽度不能为空!"});
    EXPECT_NE(run.checks[1].recheck.warnings.back().find("有 4 扇"), std::string::npos);
    const CheckRun full = RunFullChecks(Window(), {Slider("C1", 2), {"海景", "C4", 900, 900, {}, {}, 0, 0}});
    EXPECT_EQ(full.checks.size(), 1U);
    EXPECT_EQ(full.skipped.size(), 1U);
}

TEST(WindSettings, KeepCoverAndSites) {
    const TempFolder folder;
    SettingsStore settings(folder / "settings");
    SaveCover(settings, {"海景", "张三", "李四", "检测中心", "2026年1月1日"});
    EXPECT_EQ(settings.Read("Tesmar", "FM", "JHDW", ""), "检测中心");
    EXPECT_EQ(LoadCover(settings).reviewer, "李四");
    EXPECT_EQ(LoadCover(settings).date, "");
    for (const auto& [city, pressure] :
         {std::pair{"厦门", "0.8"}, {"舟山", "0.85"}, {"厦门", "0.9"}, {"", "1"}}) {
        RememberSite(settings, {city, pressure});
    }
    const auto sites = LoadSites(settings);
    ASSERT_EQ(sites.size(), 2U);
    EXPECT_EQ(sites[0].city + sites[0].pressure, "厦门0.9");
    EXPECT_EQ(sites[1].city, "舟山");
}

}  // namespace
}  // namespace kalvane::test
