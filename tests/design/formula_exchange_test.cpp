// Window types out to a spreadsheet and in again.

#include "design/formula_export.h"
#include "design/formula_import.h"
#include "support/main_store.h"
#include "support/refusal.h"
#include "support/xlsx_reader.h"

namespace kalvane::test {
namespace {

class FormulaExchangeTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"门窗厂家 (编号,名称) values(1,'甲')", "门窗系列 (厂家编号,编号,名称) values(1,2,'系')",
                "图 (编号,图名) values(7,'推拉')", "门窗 (系列编号,编号,名称,图号) values(2,4,'推拉窗',7)",
                "门窗 (系列编号,编号,名称) values(2,3,'')", "窗型材 values(4,1,'框','GK60','2-1','=B')",
                "窗型材 values(4,2,'扇','SK60','2','')", "窗型材 values(9,3,'无','X','1','1')",
                "窗型钢 values(4,1,'钢','G1','1','007')", "窗板材 values(4,1,'玻璃',2,'B-1','H')",
                "窗配件 values(3,1,'锁','S','1','只')"});
    }

    static SheetTexts Sheet(const std::vector<GridLine>& lines) {
        SheetTexts sheet;
        int row = 0;
        for (const GridLine& line : lines) {
            ++row;
            int column = 0;
            for (const std::string& text : line) sheet.Set(row, ++column, text);
        }
        return sheet;
    }
    /// "types rows row" that an import comes to, and what it was refused for.
    std::string Import(const std::vector<GridLine>& lines) {
        ImportedFormulas imported;
        const std::string refusal = Refusal([&] { ImportFormulas(*store_, Sheet(lines), "2", imported); });
        return std::to_string(imported.types) + " " + std::to_string(imported.rows) + " " +
               std::to_string(imported.sheetRow) + " " + refusal;
    }
};

TEST_F(FormulaExchangeTest, TheSheetHasABlockForEachType) {
    const std::vector<GridLine> grid = FormulaGrid(*store_);
    SaveFormulaGrid(grid, folder_ / "a.xlsx");
    EXPECT_EQ(XlsxReader(folder_ / "a.xlsx").Sheet(1).cells,
              "A1=门窗名称：推拉窗|B1=#7\n"
              "A2=型材名称|B2=型材规格|C2=数量|D2=计算公式\nA3=框|B3=GK60|C3=2-1|D3==B\nA4=扇|B4=SK60|C4=2\n"
              "A5=型钢名称|B5=型钢规格|C5=数量|D5=计算公式\nA6=钢|B6=G1|C6=1|D6=007\n"
              "A7=板材名称|B7=数量|C7=长公式|D7=宽公式\nA8=玻璃|B8=#2|C8=B-1|D8=H\n"
              "A9=门窗名称：\n"
              "A10=配件名称|B10=配件规格|C10=数量|D10=单位\nA11=锁|B11=S|C11=1|D11=只\n");
}

TEST_F(FormulaExchangeTest, AFileComesBackAsNewTypes) {
    SaveFormulaGrid(FormulaGrid(*store_), folder_ / "a.xlsx");
    ImportedFormulas imported;
    ImportFormulas(*store_, ReadFormulaSheet(folder_ / "a.xlsx"), "2", imported);
    EXPECT_EQ(Rows("Select * from 门窗 where 编号>4"), "2|5|推拉窗|~|7\n2|6|-|~|0");
    EXPECT_EQ(Rows("Select * from 窗型材 where 窗号>4 and 窗号<9"), "5|~|框|GK60|2-1|=B\n5|~|扇|SK60|2|");
    EXPECT_EQ(Rows("Select * from 窗型钢 where 窗号=5"), "5|~|钢|G1|1|007");
    EXPECT_EQ(Rows("Select * from 窗板材 where 窗号=5"), "5|~|玻璃|2|B-1|H");
    EXPECT_EQ(Rows("Select * from 窗配件 where 窗号=6"), "6|~|锁|S|1|只");
}

TEST_F(FormulaExchangeTest, RowsAreTakenByWhatStandsAboveThem) {
    EXPECT_EQ(Import({{"散", "", "", ""},
                      {"门窗名称及说明", "", "", ""},
                      {"丢", "X", "1", "1"},
                      {"型材名称：", "", "", ""},
                      {"框", "GK", " ", ""},
                      {"门窗名称:乙", "7", "", ""},
                      {"丢", "", "", ""},
                      {"", "下", "", ""},
                      {"门窗名称：丙", "7", "", ""}}),
              "2 1 7 ");
    EXPECT_EQ(Rows("Select * from 门窗 where 编号>4"), "2|5|说明|~|0\n2|6|乙|~|7");
    EXPECT_EQ(Rows("Select * from 窗型材 where 窗号=5"), "5|~|框|GK| |");
}

TEST_F(FormulaExchangeTest, ARefusedRowEndsItAndKeepsWhatCameBefore) {
    const GridLine head = {"门窗名称：丁", "7", "", ""};
    const GridLine panels = {"板材名称", "", "", ""};
    for (const GridLine& bad :
         {GridLine{"玻璃", "两", "1", "1"}, GridLine{"玻璃", "", "1", "1"}, GridLine{"玻'璃", "1", "1", "1"},
          GridLine{"玻璃", "1", "B'", "1"}, GridLine{"门窗名称：'", "7", "", ""},
          GridLine{"门窗名称：戊", "七", "", ""}}) {
        const std::vector<GridLine> lines = {head, panels, {"好", "1", "1", "1"}, bad, {"后", "1", "1", "1"}};
        EXPECT_EQ(Import(lines).substr(0, 27), "1 1 4 第 4 行不能导入") << bad[0] << bad[1];
        const ImportPreview preview = PreviewImport(*store_, Sheet(lines));
        EXPECT_EQ(preview.refusedRow, 4) << bad[0] << bad[1];
    }
    EXPECT_EQ(Rows("Select 编号 from 门窗 where 名称='丁'"), "5\n6\n7\n8\n9\n10");
    EXPECT_EQ(Rows("Select * from 窗板材 where 名称='后'"), "");
}

TEST_F(FormulaExchangeTest, TheDryRunSaysWhatWouldHappen) {
    const ImportPreview preview = PreviewImport(*store_, Sheet({{"型材名称", "", "", ""},
                                                                {"散", "X", "1", "1"},
                                                                {"门窗名称：乙", "7", "", ""},
                                                                {"丢", "", "", ""},
                                                                {"型钢名称", "", "", ""},
                                                                {"钢", "G1", "1", "B"},
                                                                {"门窗名称：", "8", "", ""},
                                                                {"", "", "", ""},
                                                                {"", "", "", "下"}}));
    EXPECT_EQ(PreviewText(preview),
              "窗型 2 个，公式 2 行。\n"
              "第 2 行在第一个“门窗名称：”之前，会加到库中编号最大的窗型上。\n"
              "第 4 行之前没有材料的标题行，不会导入。\n"
              "第一列的空格是结尾，第 9 行及以下不会导入。\n"
              "第 3 行：“乙”，公式 1 行，图号 7\n"
              "第 7 行：“-”，公式 0 行，图号 8（图库中没有）");
    EXPECT_EQ(Rows("Select 编号 from 门窗"), "4\n3") << "nothing was changed";
}

}  // namespace
}  // namespace kalvane::test
