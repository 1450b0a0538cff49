#include "page/paint_report.h"
#include "page/wrap_text.h"
#include "support/page_text.h"

namespace kalvane::test {
namespace {

// A character of the cells' 9 points is 90 twips wide, a Chinese one 180; a line is 225 high and a row of
// one line 325.

class ReportTest : public testing::Test {
  protected:
    static Report Table(int rows) {
        Report report;
        report.columns = {{"序", 1, ReportAlign::Right}, {"名", 3}};
        for (int i = 1; i <= rows; ++i) report.rows.push_back({std::to_string(i), "料"});
        return report;
    }

    std::vector<std::vector<std::string>> Print(const Report& report, float width, float height) {
        PageRecord record(measure_, width, height);
        PaintReport(record, report);
        std::vector<std::vector<std::string>> pages;
        for (const Page& page : record.Pages()) pages.push_back(CommandTexts(page));
        return pages;
    }

    static int Count(const std::vector<std::string>& page, const std::string& end) {
        int count = 0;
        for (const std::string& command : page) count += command.ends_with(end) ? 1 : 0;
        return count;
    }

    FixedMeasure measure_;
};

TEST_F(ReportTest, LinesBreakWhereAReaderExpects) {
    const struct {
        const char* text;
        int characters;  // that a line holds, Chinese ones counted twice
        std::vector<std::string> lines;
    } kCases[] = {
        {"", 4, {""}},
        {"abcd", 4, {"abcd"}},
        {"1500*2+1200+800*3", 8, {"1500*2+", "1200+", "800*3"}},
        {"1500*2+1200+800*3", 12, {"1500*2+1200+", "800*3"}},
        {"推拉窗上滑", 4, {"推拉", "窗上", "滑"}},
        {"推拉窗，上滑", 6, {"推拉", "窗，上", "滑"}},  // no mark opens a line
        {"推拉（窗）", 6, {"推拉", "（窗）"}},          // and none is left behind
        {"two words more", 9, {"two words", "more"}},
        {"窗型C60高", 6, {"窗型", "C60高"}},
        {"abcdefghij", 4, {"abcd", "efgh", "ij"}},  // no place to break
        {"ab 推", 1, {"a", "b", "推"}},             // too narrow for one character
        {"a\r\nb\n\nc", 4, {"a", "b", "", "c"}},
    };
    PageRecord page(measure_, 10000, 10000);
    for (const auto& c : kCases) {
        EXPECT_EQ(WrapText(page, c.text, static_cast<float>(90 * c.characters)), c.lines) << c.text;
    }
}

TEST_F(ReportTest, ATableStandsRuledUnderItsHeads) {
    Report report = Table(1);
    report.title = "表";
    report.heading = {{"甲", "乙"}};
    report.totals = {"", "计"};
    report.closing = {{"签字"}};
    // Title: 16 points in 400 with 120 on each side. Heading: 10 points in 250 with 60 on each side, to 1010.
    // The foot of 450 begins 9550 down; its line is 225 high.
    std::string all;
    const auto pages = Print(report, 8000, 10000);
    for (const std::string& command : pages[0]) all += command + "; ";
    EXPECT_EQ(all,
              "3840,120 表; 80,700 甲; 4080,700 乙; "  // the title is 320 wide in the middle
              // Heads, bold but no wider, with a line above them only; their texts are centred.
              "fill 0,1010 8000,1335; 0,1010 8000,1010; "
              "0,1010 0,1335; 0,1335 2000,1335; 2000,1010 2000,1335; 2000,1335 8000,1335; "
              "8000,1010 8000,1335; 910,1060 序; 4910,1060 名; "
              // A row, the number at the right.
              "0,1335 0,1660; 0,1660 2000,1660; 2000,1335 2000,1660; 2000,1660 8000,1660; "
              "8000,1335 8000,1660; 1830,1385 1; 2080,1385 料; "
              "0,1660 0,1985; 0,1985 2000,1985; 2000,1660 2000,1985; 2000,1985 8000,1985; "
              "8000,1660 8000,1985; 2080,1710 计; "
              // The closing 200 below, and the foot's 16 places of 90.
              "80,2245 签字; 80,9775 表; 6480,9775 第 1 页，共 1 页; ");
}

TEST_F(ReportTest, GroupHeadsSpanTheirColumns) {
    Report report;
    report.columns = {{"号"}, {"宽", 1, ReportAlign::Left, "尺寸"}, {"高", 1, ReportAlign::Left, "尺寸"}};
    const auto page = Print(report, 3000, 5000)[0];
    for (const char* command : {"410,212.5 号",                                // over both strips of 325
                                "1410,375 宽", "2410,375 高", "1820,50 尺寸",  //
                                "1000,325 3000,325", "0,650 1000,650"}) {
        EXPECT_EQ(Count(page, command), 1) << command;
    }
}

TEST_F(ReportTest, RowsGoOnUnderTheirHeads) {
    // Page of 4000: the foot leaves 3550 for 10 strips of 325, one of them the heads.
    const struct {
        int rows;
        std::size_t pages;
    } kCases[] = {{0, 1}, {9, 1}, {10, 2}, {18, 2}, {19, 3}, {2000, 223}};
    for (const auto& c : kCases) {
        const auto pages = Print(Table(c.rows), 8000, 4000);
        ASSERT_EQ(pages.size(), c.pages) << c.rows;
        int rows = 0;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            EXPECT_EQ(Count(pages[i], " 名"), 1);
            EXPECT_EQ(
                Count(pages[i], "第 " + std::to_string(i + 1) + " 页，共 " + std::to_string(c.pages) + " 页"),
                1);
            rows += Count(pages[i], " 料");
        }
        EXPECT_EQ(rows, c.rows);
    }
}

TEST_F(ReportTest, EachFurtherPageOpensWithWhatIsRepeated) {
    // A line of 370 and the heads of 325 leave 2855 of 3550 for 8 rows; the first page has 9.
    for (const auto& [rows, count] : {std::pair(17, 2U), {18, 3U}}) {
        Report report = Table(rows);
        report.repeated = {{"工程：甲"}};
        const auto pages = Print(report, 8000, 4000);
        ASSERT_EQ(pages.size(), count);
        EXPECT_EQ(Count(pages[0], " 料"), 9);
        EXPECT_EQ(Count(pages[1], " 料"), 8);
        for (std::size_t i = 0; i < count; ++i) EXPECT_EQ(Count(pages[i], " 工程：甲"), i == 0 ? 0 : 1);
    }
}

TEST_F(ReportTest, ARowIsDividedOnlyWhenNoPageHoldsIt) {
    Report report = Table(8);
    report.rows.push_back({"9", "一\n二\n三"});  // 775 high where 625 are left
    auto pages = Print(report, 8000, 4000);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(Count(pages[0], " 一"), 0);
    EXPECT_EQ(Count(pages[1], " 三"), 1);

    // 30 lines: the 625 left hold (625 - 100) / 225 = 2, each further page (3550 - 325 - 100) / 225 = 13.
    std::string high = "行";
    for (int i = 1; i < 30; ++i) high += "\n行";
    report.rows.back()[1] = high;
    pages = Print(report, 8000, 4000);
    ASSERT_EQ(pages.size(), 4U);
    const int lines[] = {2, 13, 13, 2};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(Count(pages[i], " 行"), lines[i]) << i;
    EXPECT_EQ(Count(pages[1], " 9"), 0);              // the number stands with the first line
    EXPECT_EQ(Print(report, 8000, 300).size(), 38U);  // no page holds a line: one on each
}

TEST_F(ReportTest, ATextDocumentFlows) {
    Report report;
    report.closing = {{std::string("供方：一")}, {"甲", "乙"}};
    for (int i = 0; i < 20; ++i) report.closing.push_back({"条"});
    // 3550 less the gap of 200 above the block: nine lines of 370; then nine a page.
    const auto pages = Print(report, 8000, 4000);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(Count(pages[0], " 条"), 7);
    EXPECT_EQ(Count(pages[1], " 条"), 9);
    EXPECT_EQ(Count(pages[2], " 条"), 4);
}

}  // namespace
}  // namespace kalvane::test
