#include "optimise/demand_file.h"
#include "optimise/demand_paste.h"
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

std::string TextOf(const std::vector<ManualRow>& rows) {
    std::string text;
    for (const ManualRow& row : rows) text += row.length + "x" + row.count + " ";
    return text;
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
        const char* complaints;  // by their lines
    } files[] = {
        {"", "", ""},
        {"2000,3\r\n1500, 4", "2000x3 1500x4 ", ""},
        {"2000\n3\n1500\n4\n\n", "2000x3 1500x4 ", ""},
        {"\xEF\xBB\xBF"
         "2000\r3\r",
         "2000x3 ", ""},
        {"2000\r\n3\r\n1500\r\n", "2000x3 ", "\n第 3 行：长度“1500”后缺少数量"},
        {"2000", "", "\n第 1 行：长度“2000”后缺少数量"},
        {"2000,3\r\n\xB3\xA4,4\r\n1,2", "2000x3 1x2 ", "\n第 2 行：长度“长”、数量“4”不是数字"},  // GBK
        {"2000\n3\n\n1e3\n4\n", "2000x3 ",
         "\n第 3 行：长度“”、数量“1e3”不是数字\n第 5 行：长度“4”后缺少数量"},
    };
    for (const auto& file : files) {
        WriteFileAtomically(folder / "a.DDD", file.bytes);
        rows.clear();
        std::string message;
        try {
            ReadDemandFile(folder / "a.DDD", rows);
        } catch (const FileError& error) {
            message = error.what();
        }
        EXPECT_EQ(TextOf(rows), file.expected);
        EXPECT_EQ(message.substr(std::min(message.find('\n'), message.size())), file.complaints);
    }
}

TEST(DemandPasteTest, TakesTheGoodRowsAndNamesTheOthers) {
    OptimiseSettings settings;
    settings.CLC = 6000;
    const struct {
        const char* text;
        const char* expected;
        const char* complaints;
    } pastes[] = {
        {"", "", ""},
        {"1500\t4\n2000\t3\n", "1500x4 2000x3 ", ""},
        {"长度\t数量\r\n1500.5\t4\r\n\r\n 2000 ,3", "1500.5x4 2000x3 ", ""},
        {"\n\"length, mm\",\"pieces\"\n\"800\",\"12\"\r900,1\t\t", "800x12 ", "\n第 4 行：缺少数量"},
        {"1500\n1500\t\n1500\t1\tA", "", "\n第 1 行：缺少数量\n第 2 行：缺少数量\n第 3 行：多于两列"},
        {"1,1\nlength,count\n-5,1\n0,1\n1e3,1\n5,0\n5,1.5\n5,1.0\n5,32768\n5999.9,1\n6000,1",
         "1x1 5x1.0 5999.9x1 ",
         "\n第 2 行：长度“length”不是正数\n第 3 行：长度“-5”不是正数\n第 4 行：长度“0”不是正数"
         "\n第 5 行：长度“1e3”不是正数\n第 6 行：数量“0”不是正数\n第 7 行：数量“1.5”不是整数"
         "\n第 9 行：数量“32768”过大\n第 11 行：长度“6000”：数据大于6000！"},
    };
    for (const auto& paste : pastes) {
        const PastedDemand pasted = ParsePastedDemand(paste.text, settings);
        EXPECT_EQ(TextOf(pasted.rows), paste.expected) << paste.text;
        const std::string message = pasted.complaints.Message();
        EXPECT_EQ(message.substr(std::min(message.find('\n'), message.size())), paste.complaints);
        EXPECT_EQ(pasted.complaints.IsEmpty(), *paste.complaints == '\0');
    }
    std::string many;
    for (int i = 0; i < 5000; ++i) many += "x1\t1\n";
    const std::string message = ParsePastedDemand("1\t1\n" + many, settings).complaints.Message();
    EXPECT_EQ(message.substr(0, message.find('\n')), "有 5000 行没有加入：");
    EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 21);  // 20 of them, and that there are more
}

}  // namespace kalvane::test
