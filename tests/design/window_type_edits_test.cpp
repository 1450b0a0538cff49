// The tree of window types as it is changed: adding, renaming, the cascades, copying and moving.

#include "design/window_type_edits.h"

#include "numeric/error.h"
#include "support/main_store.h"
#include "support/raw_store.h"
#include "support/refusal.h"

namespace kalvane::test {
namespace {

class WindowTypeEdits : public MainStoreTest {
  protected:
    /// A maker 1 with the series 1 and 2; type 1 with a row of each class and type 2 lie in series 1, type 3
    /// in series 2.
    void SetUp() override {
        Insert({"门窗厂家 (编号,名称) values(1,'甲')", "门窗系列 (厂家编号,编号,名称) values(1,1,'60')",
                "门窗系列 (厂家编号,编号,名称) values(1,2,'88')",
                "门窗 (系列编号,编号,名称,图号) values(1,1,'固定',7)",
                "门窗 (系列编号,编号,名称,图号) values(1,2,'平开',8)",
                "门窗 (系列编号,编号,名称,图号) values(2,3,'推拉',9)",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(1,4,'框','PK','2','B+6')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(1,4,'框','PK',Null,'H+6')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(3,5,'框','TL','2','B')",
                "窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(1,1,'钢','GK','2','B-9')",
                "窗板材 (窗号,编号,名称,数量,长公式,宽公式) values(1,1,'白玻',Null,'B-1','H-1')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(1,1,'垫块','DK','4','个  ')"});
    }
    std::string FormulaRows(const std::string& type) {
        std::string rows;
        for (const char* table : {"窗型材", "窗型钢", "窗板材", "窗配件"}) {
            rows += Rows(std::string("Select * from ") + table + " where 窗号=" + type) + "\n";
        }
        return rows;
    }
};

TEST_F(WindowTypeEdits, RowsAreAddedWithTheNextNumberAndRenamed) {
    EXPECT_EQ(AddWindowMaker(*store_, "乙"), "2");
    EXPECT_EQ(AddWindowSeries(*store_, "2", "70"), "3");
    EXPECT_EQ(AddWindowType(*store_, "3", "门", "5"), "4");
    RenameWindowMaker(*store_, "2", "丙");
    RenameWindowSeries(*store_, "3", "80");
    UpdateWindowType(*store_, "4", "大门", "6");
    EXPECT_EQ(Rows("Select * from 门窗厂家 where 编号=2"), "2|丙");
    EXPECT_EQ(Rows("Select * from 门窗系列 where 编号=3"), "2|3|80");
    EXPECT_EQ(Rows("Select * from 门窗 where 编号=4"), "3|4|大门|~|6");
    EXPECT_NE(Refusal([&] { RenameWindowMaker(*store_, "2", "a'b"); }), "");
}

TEST_F(WindowTypeEdits, DeletingGoesDownTheTree) {
    DeleteWindowType(*store_, "1");
    EXPECT_EQ(FormulaRows("1"), "\n\n\n\n");
    EXPECT_EQ(Rows("Select 编号 from 门窗"), "2\n3");
    DeleteWindowSeries(*store_, "2");
    EXPECT_EQ(Rows("Select 编号 from 窗型材") + Rows("Select 编号 from 门窗"), "2");
    EXPECT_EQ(Rows("Select 编号 from 门窗系列"), "1");
    DeleteWindowMaker(*store_, "1");
    EXPECT_EQ(Rows("Select * from 门窗") + Rows("Select * from 门窗系列") + Rows("Select * from 门窗厂家"),
              "");
}

TEST_F(WindowTypeEdits, ACopyHasNewNumbersAndTheSameDrawing) {
    EXPECT_EQ(CopyWindowType(*store_, "1", "2"), "4");
    EXPECT_EQ(Rows("Select * from 门窗 where 编号=4"), "2|4|固定|~|7");
    EXPECT_EQ(FormulaRows("4"),
              "4|6|框|PK|2|B+6\n4|7|框|PK||H+6\n"  // a Null text has become an empty one
              "4|2|钢|GK|2|B-9\n4|2|白玻|~|B-1|H-1\n4|2|垫块|DK|4|个  \n");
}

TEST_F(WindowTypeEdits, AQuoteEndsACopyAtItsRow) {
    RunRaw(file_, "Update 窗型钢 set 计算公式='B''' where 窗号=1");
    EXPECT_NE(Refusal([&] { CopyWindowType(*store_, "1", "2"); }), "");
    EXPECT_EQ(Rows("Select 名称 from 门窗 where 编号=4"), "固定");
    EXPECT_EQ(FormulaRows("4"), "4|6|框|PK|2|B+6\n4|7|框|PK||H+6\n\n\n\n") << "what was written stays";
}

TEST_F(WindowTypeEdits, MovingChangesTheSeriesAlone) {
    MoveWindowType(*store_, "1", "2");
    EXPECT_EQ(Rows("Select * from 门窗 where 编号=1"), "2|1|固定|~|7");
}

}  // namespace
}  // namespace kalvane::test
