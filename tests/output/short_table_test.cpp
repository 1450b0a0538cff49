#include "output/short_table.h"

#include "numeric/error.h"
#include "output/golden_pages.h"
#include "output/short_table_pages.h"
#include "output/short_table_windows.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class ShortTableTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"Line (X1,Y1,X2,Y2,Bn) values(0,0,9495,7935,7)", "标注 (MCNUM,MC,schar) Values(9,'B','1000')",
                "标注 (MCNUM,MC,schar) Values(9,'H','1500')"});
        for (int type = 1; type <= 5; ++type) {
            const std::string n = std::to_string(type);
            Insert({"门窗 (系列编号,编号,名称,图号) values(1," + n + ",'T" + n + "',7)",
                    "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(" + n + ",1,'框b','K','2','b-60')",
                    "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(" + n + ",2,'框H','K','1.9','h-44.5')",
                    "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(" + n + ",3,'框 B','K','7','h')"});
        }
    }

    static WindowEntry Window(const std::string& type, const std::string& number = "9") {
        return {"C" + type, "东厅", "1000", "1500", "2", "", "3", type, number};
    }
    /// So many windows of types 1, 2, 3 ..., or all of type 1.
    static std::vector<WindowEntry> Windows(int count, bool isOneType) {
        std::vector<WindowEntry> windows;
        for (int i = 1; i <= count; ++i) windows.push_back(Window(isOneType ? "1" : std::to_string(i)));
        return windows;
    }
    ShortTable Make(const std::vector<WindowEntry>& windows) {
        return MakeShortTable(*store_, slots_, "河畔", windows);
    }
    static std::string Fields(const SimpleBuyTable& table) {
        std::string text;
        for (const BuyRecord& record : table.Records()) {
            for (const std::string& field : record) text += field + "|";
            text += "\n";
        }
        return text;
    }

    FieldSlots slots_;
    FixedMeasure measure_;
};

TEST_F(ShortTableTest, KeyNamesCountWhateverTheirCase) {
    Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(1,4,'框B','K','0-1.5','b-70')",
            "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(2,4,'固定框h','K','1','h/7')"});
    // The second 框B stands, its count -1.5 rounded down to -2 and times 2.
    EXPECT_EQ(Fields(Make(Windows(2, false)).table),
              "1000*1500|2|930|-4|1455.5|2|||||||||\n"
              "1000*1500|2|940|4|1455.5|2|||||||214.2857|2|\n");
    EXPECT_EQ(slots_[2], "T2") << "the row of the window type stays in the slots";
}

TEST_F(ShortTableTest, WindowsWithoutALineAreNamed) {
    store_->Execute("Delete * from 窗型材 where 窗号=2");
    WindowEntry composite = Window("-7");
    const ShortTable made = Make({composite, Window("1", "8"), Window("2")});
    EXPECT_EQ(made.table.PageCount(), "0");
    ASSERT_EQ(made.leftOut.size(), 3U);
    const char* const kReasons[] = {"组合门窗", "没有标注", "窗型没有型材"};
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(made.leftOut[i].reason, kReasons[i]);
    EXPECT_EQ(made.leftOut[2].name, "C2");
}

TEST_F(ShortTableTest, WhatCannotBeWorkedOutEndsTheTable) {
    EXPECT_THROW(Make({Window("6")}), StoreError);
    // A row of a name that is passed over is worked out all the same.
    store_->Execute("Update 窗型材 set 计算公式='b)' where 窗号=3 and 编号=3");
    try {
        Make({Window("3")});
        FAIL();
    } catch (const Error& failure) {
        EXPECT_EQ(std::string(failure.what()).find("门窗“C3”的型材“框 B”不能计算："), 0U) << failure.what();
    }
}

TEST_F(ShortTableTest, PagesEndAt18LinesOr4Boxes) {
    SimpleBuyTable table;
    const auto add = [&](const char* keys) {
        for (const char* key = keys; *key != '\0'; ++key) {
            SimpleBuyTable::Fields fields;
            fields[15] = std::string(1, *key);
            fields[17] = fields[15];
            table.AddRecord(fields);
        }
        table.AddRecordEnd();
    };
    const struct {
        const char* keys;  // window types, one letter each
        std::vector<std::string> captions;
    } kCases[] = {
        {"", {}},
        {"aab", {"1~2为:a", "3~3为:b"}},
        {"abcda", {"1~1为:a", "2~2为:b", "3~3为:c", "4~4为:d", "/", "1~1为:a"}},
        {"abab", {"1~1为:a", "2~2为:b", "3~3为:a", "4~4为:b"}},  // only the last box is compared
        {"aaaaaaaaaaaaaaaaaaaa", {"1~18为:a", "/", "1~2为:a"}},  // 20
        {"abcdd", {"1~1为:a", "2~2为:b", "3~3为:c", "4~4为:d", "/", "1~1为:d"}},
    };
    for (const auto& c : kCases) {
        table.ClearAll();
        add(c.keys);
        std::vector<std::string> captions;
        for (int page = 1; page <= std::stoi(table.PageCount()); ++page) {
            if (page > 1) captions.emplace_back("/");
            for (const ShortBox& box : BoxesOf(table, page)) captions.push_back(box.caption);
        }
        EXPECT_EQ(captions, c.captions) << c.keys;
    }
}

TEST_F(ShortTableTest, GoldenPages) {
    const struct {
        int windows;
        bool isOneType;
        const char* golden;
    } kCases[] = {{18, true, "short_18.txt"},
                  {19, true, "short_19.txt"},
                  {4, false, "short_4_boxes.txt"},
                  {5, false, "short_5_boxes.txt"}};
    for (const auto& c : kCases) {
        const SimpleBuyTable table = Make(Windows(c.windows, c.isOneType)).table;
        PageRecord page(measure_, 11906, 16838);
        table.PrintPageAll(page, *store_, notice_);
        EXPECT_EQ(PagesText(page), Golden(c.golden));
    }
}

TEST_F(ShortTableTest, PagesOutsideOfTheTablePaintNothing) {
    const SimpleBuyTable table = Make(Windows(5, false)).table;
    PageRecord page(measure_, 11906, 16838);
    for (const int number : {-1, 0, 3}) table.PrintPage(page, *store_, notice_, number);
    SimpleBuyTable().PrintPageAll(page, *store_, notice_);
    EXPECT_TRUE(page.IsEmpty());
    table.PrintPage(page, *store_, notice_, 2);
    EXPECT_EQ(PagesText(page).find("page 1\n"), 0U);
    EXPECT_NE(PagesText(page).find("1~1为:T5\n"), std::string::npos);
    EXPECT_EQ(page.Pages().size(), 1U);
}

}  // namespace
}  // namespace kalvane::test
