#include "optimise/demand_file.h"
#include "optimise/plan.h"
#include "optimise/plan_text.h"
#include "optimise/plan_workbook.h"
#include "platform/error.h"
#include "platform/files.h"
#include "support/main_store.h"

namespace kalvane::test {

/// A plan of two materials, one with two like bars on rows of their own.
class PlanTest : public MainStoreTest {
  protected:
    PlanTest() {
        InsertPlanRow(*store_, {"B", "800*4", "1", "0.5", "2800"});
        InsertPlanRow(*store_, {"A", "2000*3", "1", "1", "0"});
        InsertPlanRow(*store_, {"A", "1500", "1", "0.25", "4500"});
        InsertPlanRow(*store_, {"A", "2000*3", "1", "1", "0"});
        plan_ = LoadPlanOutput(*store_, "阳光花园", "2024-05-01");
    }

    PlanOutput plan_;
};

TEST_F(PlanTest, SumsLikeBarsNamesAMaterialOnceAndIsWrittenAsText) {
    const std::vector<CutRow> cuts = {{"A", "1500", "1", "0.25", "4500"},
                                      {"", "2000*3", "2", "1", "0"},
                                      {"B", "800*4", "1", "0.5", "2800"}};
    EXPECT_EQ(plan_.cuts, cuts);
    // (1 + 0.25 + 1) / 3
    const std::vector<TotalRow> totals = {{"A", "3", "0.75"}, {"B", "1", "0.5"}};
    EXPECT_EQ(plan_.totals, totals);
    SavePlanText(plan_, folder_ / "plan.txt");
    EXPECT_EQ(ReadFile(folder_ / "plan.txt"),
              "\xEF\xBB\xBF"
              "材料优化切割表\r\n"
              "\r\n"
              "\t\t工程名称：阳光花园\r\n"
              "\t材料名称\t切割规格\t数量\t优化比率\t余料长度\t\r\n"
              "\tA\t1500\t1\t0.25\t4500\r\n"
              "\t\t2000*3\t2\t1\t0\r\n"
              "\tB\t800*4\t1\t0.5\t2800\r\n"
              "\t日期\t2024-05-01\r\n"
              "====================================================================================\r\n"
              "材料优化统计表\r\n"
              "工程名称：阳光花园\r\n"
              "\t材料名称\t数量\t优化比率\t采购数量\r\n"
              "\tA\t3\t0.75\r\n"
              "\tB\t1\t0.5\r\n"
              "总经理签字\r\n\r\n主管签字\r\n\r\n"
              "\t日期2024-05-01\r\n");
    EXPECT_THROW(SavePlanText({}, folder_ / "missing" / "plan.txt"), FileError);
}

TEST_F(PlanTest, FillsTheSpreadsheet) {
    const Workbook workbook = PlanWorkbook(plan_);
    const struct {
        std::size_t sheet;
        int row, column;
        const char* text;
        bool isNumber, hasBorder;
    } cells[] = {{0, 1, 1, "材料优化切割表", false, false},
                 {0, 3, 2, "阳光花园", false, false},
                 {0, 4, 2, "                 切割规格", false, true},
                 {0, 6, 1, "", false, true},
                 {0, 6, 3, "2", true, true},
                 {0, 7, 5, "2800", true, true},
                 {1, 4, 4, "   采购数量", false, true},
                 {1, 5, 3, "0.75", true, true},
                 {1, 9, 3, "2024-05-01", false, false}};
    for (const auto& cell : cells) {
        const Sheet& sheet = workbook.Sheets().at(cell.sheet);
        EXPECT_EQ(sheet.Text(cell.row, cell.column), cell.text) << cell.row << " " << cell.column;
        EXPECT_EQ(sheet.IsNumber(cell.row, cell.column), cell.isNumber) << cell.text;
        EXPECT_EQ(sheet.HasBorder(cell.row, cell.column), cell.hasBorder) << cell.text;
    }
    workbook.Save(folder_ / "plan.xlsx");
    EXPECT_EQ(ReadFile(folder_ / "plan.xlsx").substr(0, 2), "PK");
    EXPECT_THROW(workbook.Save(folder_ / "missing" / "plan.xlsx"), FileError);
}

TEST(DemandFileTest, WritesTwoLinesPerRowAndReadsForeignFilesAsFarAsTheyAreWhole) {
    const TempFolder folder;
    std::vector<ManualRow> rows = {{"2000", "3"}, {"1500.5", "4"}};
    WriteDemandFile(folder / "a.DDD", rows);
    EXPECT_EQ(ReadFile(folder / "a.DDD"), "2000\r\n3\r\n1500.5\r\n4\r\n");
    ReadDemandFile(folder / "a.DDD", rows);  // rows are added
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[3].length, "1500.5");

    const struct {
        const char* bytes;
        const char* expected;
        bool isWhole;
    } files[] = {
        {"", "", true},
        {"2000,3\r\n1500, 4", "2000x3 1500x4 ", true},
        {"2000\n3\n1500\n4\n\n", "2000x3 1500x4 ", true},
        {"2000\r3\r", "2000x3 ", true},
        {"2000\r\n3\r\n1500\r\n", "2000x3 ", false},
        {"2000", "", false},
    };
    for (const auto& file : files) {
        WriteFileAtomically(folder / "a.DDD", file.bytes);
        rows.clear();
        bool isWhole = true;
        try {
            ReadDemandFile(folder / "a.DDD", rows);
        } catch (const FileError&) {
            isWhole = false;
        }
        std::string text;
        for (const ManualRow& row : rows) text += row.length + "x" + row.count + " ";
        EXPECT_EQ(text, file.expected);
        EXPECT_EQ(isWhole, file.isWhole) << file.bytes;
    }
}

}  // namespace kalvane::test
