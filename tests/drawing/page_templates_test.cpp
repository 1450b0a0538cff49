#include "drawing/page_templates.h"

#include <algorithm>

#include "drawing/mcpicture.h"
#include "drawing/recorders.h"
#include "support/main_store.h"
#include "support/page_text.h"

namespace kalvane::test {
namespace {

class PageTemplatesTest : public MainStoreTest {
  protected:
    void SetUp() override {
        // Of the frame: a level line through the middle, and a text that must not be printed.
        Insert({"Line (x1,y1,x2,y2,Bn) values(0,3967.5,9495,7935,7)",
                "Strings (X1,Y1,Chars,Bn) values(100,100,'B',7)"});
        sheet_.drawingNumber = "7";
        for (std::size_t i = 0; i < 12; ++i) sheet_.titles[i] = "值" + std::to_string(i + 1);
        sheet_.maker = "厂";
    }

    /// A table whose cell (c, r) is "r/c", with one row behind the last.
    void SetRows(int count) {
        for (int r = 1; r <= count + 1; ++r) {
            for (int c = 1; c <= 5; ++c) {
                sheet_.table.SetCell(c, r, std::to_string(r) + "/" + std::to_string(c));
            }
        }
        sheet_.rowCount = static_cast<std::int16_t>(count);
    }

    std::vector<std::vector<std::string>> PrintSheet() {
        PageRecord page(measure_, 11000, 15900);
        picture_.ClearData();
        picture_.PrintTemplate01(page, *store_, sheet_);
        std::vector<std::vector<std::string>> pages;
        for (const Page& each : page.Pages()) pages.push_back(CommandTexts(each));
        return pages;
    }

    /// Expects each of the commands, divided by "; ", on the page.
    static void ExpectAll(const std::vector<std::string>& page, std::string_view commands) {
        while (!commands.empty()) {
            const std::string_view command = commands.substr(0, commands.find("; "));
            EXPECT_NE(std::find(page.begin(), page.end(), command), page.end()) << command;
            commands.remove_prefix(std::min(commands.size(), command.size() + 2));
        }
    }
    static bool HasText(const std::vector<std::string>& page, const std::string& text) {
        return std::any_of(page.begin(), page.end(), [&](const auto& c) { return c.ends_with(" " + text); });
    }

    FixedMeasure measure_;
    CPictire picture_{notice_};
    ComponentSheet sheet_;
};

TEST_F(PageTemplatesTest, TheSheetStandsInItsPlaces) {
    SetRows(45);
    sheet_.table.SetCell(3, 2, "");
    sheet_.labels = {LabelOnPage(9495, 7935, "1500"), LabelOnPage(0, 0, ""), LabelOnPage(949.5, 793.5, "h")};
    const auto pages = PrintSheet();
    ASSERT_EQ(pages.size(), 1U);
    const auto& page = pages[0];
    // Drawing 1, frame 4, head 6, table 24, verticals 4 + 8; 12 captions and values; 2 labels; 46 rows of
    // five less one, of which row 46 lies behind the count and is printed all the same; the maker.
    EXPECT_EQ(page.size(), 1U + 4 + 6 + 24 + 12 + 24 + 2 + (46 * 5 - 1) + 1);
    EXPECT_EQ(std::vector(page.begin(), page.begin() + 7),
              (std::vector<std::string>{"0,2958.5 5500,4917", "0,1000 11000,1000", "11000,1000 11000,14710",
                                        "11000,14710 0,14710", "0,14710 0,1000", "5500,1652.86 11000,1652.86",
                                        "5500,2305.72 11000,2305.72"}));
    // Head rule 6: 6 x 652.86 + 1000. Table rule 23: 23 x 397.39 + 5570. Table row 1: 397.39 + 5271.3, row 46
    // in band 23 of the right half. Label h: 550 x 1, 391.7 + 1000.
    ExpectAll(
        page,
        "5500,4917.16 11000,4917.16; 0,5570 11000,5570; 0,14709.97 11000,14709.97; 5500,1000 5500,14710; "
        "6520.29,1000 6520.29,5570; 8250,2958.57 8250,5570; 9270.29,2958.57 9270.29,5570; "
        "2080.12,5570 2080.12,14710; 10432.29,5570 10432.29,14710; 5600,1200 工程名称; 6620,1200 值1; "
        "8350.29,3158.57 购件表号; 9370.29,4464.14 值9; -920,5117.14 ; 100,5117.14 值10; "
        "8350.29,5117.14 校    对; 5500,4917 1500; 550,1391.7 h; 100,5668.69 1/1; 4854.5,5668.69 1/5; "
        "5600,5668.69 24/1; 10532.29,14411.27 46/5");
    EXPECT_FALSE(HasText(page, "B"));
    EXPECT_EQ(page.back(), "500,500 制作单位：厂");
}

TEST_F(PageTemplatesTest, AWideTextIsPrintedSmaller) {
    SetRows(24);
    // At 9 points 1800 and 9000 twips wide; the cell has 7383.33 - 6345.5 = 1037.83 from the text on.
    sheet_.table.SetCell(2, 24, "十个字那么长的名称啊");
    sheet_.table.SetCell(2, 25, std::string(100, 'n'));
    PageRecord page(measure_, 11000, 15900);
    picture_.PrintTemplate01(page, *store_, sheet_);
    std::string sizes;
    for (const PageCommand& command : page.Pages()[0]) {
        const auto* text = std::get_if<PageText>(&command);
        if (text == nullptr || text->x != 6345.5F) continue;
        sizes += ShortText(text->font.points) + " ";
    }
    // 9 x 1037.83 / 1800, then the smallest.
    EXPECT_EQ(sizes, "5.18915 5 ");
}

TEST_F(PageTemplatesTest, TheTableGoesOn) {
    for (const auto& [rows, count] : {std::pair(46, 1U), {47, 2U}, {112, 2U}, {113, 3U}}) {
        SetRows(rows);
        EXPECT_EQ(PrintSheet().size(), count) << rows;
    }
    const auto pages = PrintSheet();  // of 113 rows
    const auto& second = pages[1];
    // 34 rules, eleven verticals, 66 rows of five.
    EXPECT_EQ(second.size(), 34U + 11 + 66 * 5);
    // The last rule: 33 x 397.39 + 1000. Places 2, 33, 34 and 66: 1100 + 397.39, + 32 x 397.39, and again.
    ExpectAll(
        second,
        "0,1000 11000,1000; 0,14113.87 11000,14113.87; 0,1000 0,14113.87; 11000,1000 11000,14113.87; "
        "100,1100 48/1; 667.71,1497.39 49/2; 100,13816.48 80/1; 5600,1100 81/1; 10532.29,13816.48 113/5");
    for (const auto& page : pages) EXPECT_FALSE(HasText(page, "47/1"));
    EXPECT_EQ(pages[2].size(), 34U + 11 + 5);
    ExpectAll(pages[2], "100,1100 114/1");
    sheet_.table.SetCell(2, 48, "");
    ExpectAll(PrintSheet()[1], "667.71,1100 ");  // empty texts too
}

TEST_F(PageTemplatesTest, TheBareDrawingPage) {
    PageRecord page(measure_, 11000, 15900);
    const std::vector<PageLabel> labels{LabelOnPage(9495, 7935, "1500"), LabelOnPage(0, 0, "")};
    MCPicture picture(notice_);
    picture.PrintTMP02(page, *store_, "7", labels);
    ASSERT_EQ(page.Pages().size(), 1U);
    // The box is not the one the labels are placed for: half of 4417 + 500.
    EXPECT_EQ(CommandTexts(page.Pages()[0]),
              (std::vector<std::string>{"0,2708.5 5000,4917", "5500,4917 1500"}));
    picture.PrintTMP02(page, *store_, "8", {});  // no such drawing: the first is still held
    EXPECT_EQ(page.Pages()[0].size(), 3U);
}

TEST_F(PageTemplatesTest, PrintPictureTellsOfAnEmptyDrawing) {
    PageRecord page(measure_, 11000, 15900);
    picture_.AddArc({{0, 0}, {10, 0}, {5, 5}});
    picture_.PrintPicture(page);
    EXPECT_TRUE(page.IsEmpty());
    EXPECT_EQ(notice_.shown, std::vector<std::string>{"#Error|图形为空!"});

    picture_.AddLine({{1, 2}, {3, 4}});
    for (int i = 0; i < 2; ++i) picture_.PrintPicture(page);  // another document begins a page of its own
    ASSERT_EQ(page.Pages().size(), 2U);
    EXPECT_EQ(page.Pages()[0].size(), page.Pages()[1].size());
    EXPECT_EQ(CommandTexts(page.Pages()[1]).front(), "1,2 3,4");
}

}  // namespace
}  // namespace kalvane::test
