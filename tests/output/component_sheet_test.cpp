#include "output/component_sheet.h"

#include "output/golden_pages.h"
#include "output/sheet_document.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class ComponentSheetTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"工程 (编号,合同编号,工程名称,工程地点,甲方单位) values(3,'HT-1','河畔','西岸','甲公司')",
                "Line (X1,Y1,X2,Y2,Bn) values(0,0,9495,7935,7)", "Strings (X1,Y1,Chars,Bn) values(9,9,'B',7)",
                "门窗 (系列编号,编号,名称,图号) values(1,5,'推拉窗',7)",
                "标注 (MCNUM,MC,schar,px,py) Values(9,'B','1000',949,7935)",
                "标注 (MCNUM,MC,schar,px,py) Values(9,'H1',' 400 ',9495,0)",
                "标注 (MCNUM,MC,schar,px,py) Values(9,'H','',1,2)"});
    }

    /// A row of each class and more, of which some cannot be worked out.
    void AddRows() {
        Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'框B','K60','2.9','b-60')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,2,'框H',Null,'0-1.5','b)')",
                "窗型材 (窗号,编号,规格,数量,计算公式) values(5,3,'K70',Null,'h1/7')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,1,'滑轮','L1','2.5','个  ')",
                "窗配件 (窗号,编号,名称,规格,数量) values(5,2,'锁','S1','3.5')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,3,'钉','D1','99999','只')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,4,'胶','J1',Null,'支')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,5,'条','T1','b)','米')",
                "窗板材 (窗号,编号,名称,数量,长公式,宽公式) values(5,1,'5白玻',2,'B-185','H1-183')",
                "窗板材 (窗号,编号,名称,长公式,宽公式) values(5,2,'8白玻','B','H1')"});
    }

    WorkedOutSheet Sheet(const WindowEntry& window, int place = 12) {
        return WorkOutSheet(*store_, slots_, kOrigin, window, place);
    }

    static std::string Table(const WorkedOutSheet& sheet) {
        std::string text;
        for (int row = 1; row <= sheet.page.rowCount; ++row) {
            for (int column = 1; column <= 5; ++column) {
                text += (column > 1 ? "|" : "") + sheet.page.table.Cell(column, row);
            }
            text += "\n";
        }
        return text;
    }

    /// Rows of the table, a heading among them, for the window of the golden pages.
    void AddProfiles(int rows) {
        store_->Execute("Delete * from 窗型材");
        for (int i = 1; i < rows; ++i) {
            const std::string n = std::to_string(i);
            Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5," + n + ",'M" + n + "','K" + n +
                    "','1','b-" + n + "')"});
        }
    }

    const SheetOrigin kOrigin{"3", "宏达", SheetDate(2026, 1, 5)};
    const WindowEntry kPlain{"C1", "东厅", "1000", "1500", "2", "白色", "3", "5", "9"};
    FieldSlots slots_;
    FixedMeasure measure_;
};

TEST_F(ComponentSheetTest, EachClassCountsInItsWay) {
    AddRows();
    const WorkedOutSheet sheet = Sheet(kPlain);
    EXPECT_EQ(Table(sheet),
              "序号|型材名称|型材代号|型材长度|数量\n"
              "1|框B|K60|940|4\n"   // 2.9 down to 2, x 2
              "2|框H|||-4\n"        // -1.5 down to -2; its code and its length fail
              "3||K70|57.14286|\n"  // 400 / 7
              "序号|配件名称|配件规格|单位|数量\n"
              "1|滑轮|L1|个  |4\n"  // 2.5 to the even 2
              "2|锁|S1||8\n"        // without a unit all the same: 3.5 to the even 4
              "3|钉|D1|只|99999\n"  // beyond 16 bits it stays
              "4|胶|J1|支|0\n"      // an empty quantity
              "5|条|T1|米|\n"       // a formula without end
              "序号|板材名称|板材长|板材宽|数量\n"
              "1|5白玻|815|217|4\n"
              "2|8白玻|1000|400|\n");
    EXPECT_EQ(sheet.failures.size(), 6U);
    EXPECT_EQ(sheet.failures[0], "型材2“框H”的“型材代号”：无效使用 Null");
    EXPECT_EQ(sheet.page.drawingNumber, "7");
    EXPECT_EQ(slots_[2], "河畔") << "the project's row stays in the slots";
}

TEST_F(ComponentSheetTest, ACompositeListsItsMembers) {
    AddRows();
    for (const char* sql : {"Delete * from 窗型材 where 编号>1", "Delete * from 窗配件 where 编号>1",
                            "Delete * from 窗板材 where 编号>1"}) {
        store_->Execute(sql);
    }
    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,count) values(9,5,'B','700','甲',3)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,count) values(9,5,'H1','600','甲',3)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,count) values(9,5,'B','500','乙',1)",
            "标注2 (MCBN,CBN,MC,CMC,count) values(9,5,'H1','乙',1)"});
    WindowEntry composite = kPlain;
    composite.typeNumber = "-7";
    const WorkedOutSheet sheet = Sheet(composite);
    // 乙 (first by its code) has a label without a value: nothing of it is worked out from labels.
    EXPECT_EQ(Table(sheet),
              "序号|型材名称|型材代号|型材长度|数量\n1|框B|K60||\n"
              "序号|配件名称|配件规格|单位|数量\n1|滑轮|L1|个  |\n"
              "序号|板材名称|板材长|板材宽|数量\n1|5白玻|||4\n"
              "序号|型材名称|型材代号|型材长度|数量\n1|框B|K60|640|12\n"  // 2 x 2 x 3
              "序号|配件名称|配件规格|单位|数量\n1|滑轮|L1|个  |12\n"
              "序号|板材名称|板材长|板材宽|数量\n1|5白玻|515|417|12\n");
    EXPECT_EQ(sheet.page.drawingNumber, "7");
    EXPECT_EQ(sheet.page.labels.size(), 3U) << "the overlay is that of the composite";
    EXPECT_FALSE(sheet.failures.empty());
}

TEST_F(ComponentSheetTest, ASheetStandsWithoutWhatIsGone) {
    WindowEntry window = kPlain;
    window.typeNumber = "6";
    const WorkedOutSheet sheet =
        WorkOutSheet(*store_, slots_, {"4", "", ""}, window, 1);  // neither project nor window type
    EXPECT_EQ(sheet.page.rowCount, 0);
    EXPECT_EQ(sheet.page.titles[0], "");
    EXPECT_EQ(sheet.failures.size(), 2U);
    PageRecord page(measure_, 11000, 15900);
    PaintSheet(page, *store_, sheet, {}, notice_);
    EXPECT_EQ(page.Pages().size(), 1U);
}

TEST_F(ComponentSheetTest, NumbersAndDates) {
    EXPECT_EQ(SheetNumber(7), "007");
    EXPECT_EQ(SheetNumber(999), "999");
    EXPECT_EQ(SheetNumber(1000), "1000");
    EXPECT_EQ(SheetDate(2026, 11, 25), " 2026年 11月 25日");
}

TEST_F(ComponentSheetTest, WhatIsBehindRow600IsLost) {
    AddProfiles(603);
    const WorkedOutSheet sheet = Sheet(kPlain);
    EXPECT_EQ(sheet.page.rowCount, 603);
    EXPECT_EQ(sheet.page.table.Cell(2, 600), "M599");
    EXPECT_EQ(sheet.page.table.Cell(2, 601), "");
    EXPECT_EQ(sheet.failures, std::vector<std::string>{"构件表最多600行，第601至603行没有列出"});
}

TEST_F(ComponentSheetTest, GoldenPages) {
    for (const int rows : {23, 46, 47, 112, 113}) {
        AddProfiles(rows);
        PageRecord page(measure_, 11000, 15900);
        PaintSheet(page, *store_, Sheet(kPlain), {}, notice_);
        EXPECT_EQ(PagesText(page), Golden("sheet_" + std::to_string(rows) + ".txt")) << rows;
    }
}

TEST_F(ComponentSheetTest, AJobPrintsSheetAfterSheet) {
    AddProfiles(47);
    const SheetSet sheets(*store_, slots_, kOrigin, {kPlain, kPlain, kPlain});
    PageRecord page(measure_, 11000, 15900);
    sheets.Print(page, 2, 3, {.keepsShape = true, .marksPages = true}, notice_);
    ASSERT_EQ(page.Pages().size(), 4U);
    EXPECT_FALSE(page.IsEmpty());
    // A frame of 9495 x 7935 in a height of 3917 is 3917 / 7935 x 9495 = 4687.0718 wide, half of the rest,
    // 406.4641, at its left: B stands 949 / 9495 x 4687.0718 further.
    const auto first = CommandTexts(page.Pages()[0]);
    EXPECT_EQ(first[0], "406.4641,1000 5093.536,4917");
    EXPECT_NE(std::find(first.begin(), first.end(), "874.9244,4917 1000"), first.end());
    EXPECT_EQ(CommandTexts(page.Pages()[1])[0], "500,500 河畔  002  C1---东厅（续1）");
    EXPECT_EQ(CommandTexts(page.Pages()[3])[0], "500,500 河畔  003  C1---东厅（续1）");
}

}  // namespace
}  // namespace kalvane::test
