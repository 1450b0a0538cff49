#include "wind/wind_pages.h"

#include "support/page_text.h"
#include "wind/wind_document.h"
#include "wind_kit.h"

namespace kalvane::test {
namespace {

// A4: left 1488, top 1052, bottom 16838 − 1870 = 14968. A line of 225 twips takes 300; (14968 − 1052) / 300
// is 46.4, so that a page has 47 lines, and 217 lines take five pages, the last with 29.
constexpr float kA4Width = 11906;
constexpr float kA4Height = 16838;

TEST(WindPages, LinesFillAPageUpToTheLimit) {
    const auto metrics = FullPageMetrics::Of(kA4Width, kA4Height);
    EXPECT_EQ(metrics.left, 1488);
    EXPECT_EQ(metrics.top, 1052);
    EXPECT_EQ(metrics.bottom, 14968);
    const auto placed = PlaceLines(metrics, 225, 217);
    ASSERT_EQ(placed.size(), 217U);
    EXPECT_EQ(placed[46].page, 1);
    EXPECT_EQ(placed[46].y, 1052 + 46 * 300);
    EXPECT_EQ(placed[47].page, 2);
    EXPECT_EQ(placed[47].y, 1052);
    EXPECT_EQ(placed[216].page, 5);
    EXPECT_EQ(placed[216].y, 1052 + 28 * 300);
    // 100 / 3 is cut: a line takes 133. A line that would begin on the limit itself begins a page.
    const auto cut = PlaceLines({0, 0, 266}, 100, 3);
    EXPECT_EQ(cut[1].y, 133);
    EXPECT_EQ(cut[2].page, 2);
}

class WindDocument : public testing::Test {
  protected:
    /// Texts of a page without their places.
    std::vector<std::string> Texts(const Page& page) {
        std::vector<std::string> texts;
        for (const PageCommand& command : page) {
            if (const auto* text = std::get_if<PageText>(&command)) texts.push_back(text->text);
        }
        return texts;
    }

    FixedMeasure measure_;
    PageRecord record_{measure_, kA4Width, kA4Height};
};

TEST_F(WindDocument, FullReportHasItsNumberAtTheFootOfEachPage) {
    PaintFullReport(record_, CheckFullWindow(Window()).lines);
    ASSERT_EQ(record_.Pages().size(), 5U);
    const auto first = CommandTexts(record_.Pages()[0]);
    EXPECT_EQ(first[0], "1488,1052                     =====建筑门窗框、扇及玻璃校核报告=====");
    // "页:/1/" takes 6 half-width places of 90 twips: x = (11906 − 540) / 2; y = 14968 + 225.
    EXPECT_EQ(first.back(), "5683,15193 页:/1/");
    EXPECT_EQ(Texts(record_.Pages()[4]).back(), "页:/5/");
}

TEST_F(WindDocument, CoverSpreadsTheProjectAndTheTitle) {
    PaintCover(record_, {"海景花园", "张三", "李四", "检测中心", CoverDate(2026, 3, 5)});
    ASSERT_EQ(record_.Pages().size(), 1U);
    EXPECT_EQ(Texts(record_.Pages()[0]),
              (std::vector<std::string>{"海 景 花 园", "门", "窗", "校", "核", "报", "告",
                                        "校       核：张三", "审       核：李四", "校 核 单 位：检测中心",
                                        "校 核 日 期：2026年3月5日"}));
}

TEST_F(WindDocument, AnnexStandsOnItsOwnPageUnlessLeftOut) {
    const WindowCheck check = CheckSlidingWindow(Sash());
    PaintCheckRun(record_, {{check}, {}}, true);
    const std::size_t pages = record_.Pages().size();
    const auto annex = Texts(record_.Pages().back());
    EXPECT_EQ(annex[0], "附：复核");
    std::string all;
    for (const std::string& text : annex) all += text;
    EXPECT_NE(all.find("报告合格，按一致单位复核不合格"), std::string::npos);
    PageRecord without(measure_, kA4Width, kA4Height);
    PaintCheckRun(without, {{check}, {}}, false);
    EXPECT_EQ(without.Pages().size() + 1, pages);
    EXPECT_EQ(Texts(without.Pages()[0]), Texts(record_.Pages()[0]));
    // The title's line is 24 points behind three tabs; the sub-headings stand behind one.
    const auto lines = CommandTexts(without.Pages()[0]);
    EXPECT_EQ(lines[0], "3212,1652 塑钢门窗抗风压校核报告");
    EXPECT_EQ(lines[1], "1052,2602 一、工程名称：");
}

TEST_F(WindDocument, SeveralWindowsHaveTheirVerdictsAtTheHead) {
    const CheckRun run = {{CheckSlidingWindow(Sash({{"txtGCMC", "海景"}, {"txtMCBH", "TC1"}})),
                           CheckSlidingWindow(Sash({{"txtMCBH", "TC2"}, {"txtXGGXG", "30"}}))},
                          {"C3：扇宽度不能为空!"}};
    PaintCheckRun(record_, run, false);
    EXPECT_EQ(
        Texts(record_.Pages()[0]),
        (std::vector<std::string>{"校核结论", "序号", "门窗", "玻璃面积", "型钢挠度", "复核", "1", "海景 TC1",
                                  "合格", "合格", "不合格（与报告不同）", "2", "TC2", "合格", "合格", "合格",
                                  "未校核：C3：扇宽度不能为空!", "校核结论", "第 1 页，共 1 页"}));
    const std::string text = CheckRunText(run, true);
    EXPECT_EQ(text.find("校核结论\r\n序号\t门窗\t玻璃面积\t型钢挠度\t复核\r\n1\t海景 TC1\t"), 0U);
    EXPECT_NE(text.find("\r\n\r\n附：复核\r\n门窗：TC2\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\n\t\t\t塑钢门窗抗风压校核报告\r\n\r\n一、工程名称：海景\r\n"), std::string::npos);
}

}  // namespace
}  // namespace kalvane::test
