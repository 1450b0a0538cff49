#include "optimise/demand_file.h"
#include "optimise/demand_paste.h"
#include "optimise/plan.h"
#include "optimise/plan_file.h"
#include "optimise/plan_report.h"
#include "platform/files.h"
#include "support/main_store.h"
#include "support/refusal.h"
#include "support/xlsx_reader.h"

namespace kalvane::test {
namespace {

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
    // A's mean is (1 + 0.25 + 1) / 3.
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
    PlanWorkbook(plan_).Save(folder_ / "plan.xlsx");
    const XlsxReader reader(folder_ / "plan.xlsx");
    const XlsxSheet cuts = reader.Sheet(1);
    EXPECT_EQ(cuts.cells,
              "A1=材料优化切割表|B1=|C1=|D1=|E1=\n"
              "A3=   工程名称：|B3=阳光花园\n"
              "A4=材料名称|B4=                 切割规格|C4=数量|D4=优化比率|E4=余料长度\n"
              "A5=A|B5=1500|C5=#1|D5=#0.25|E5=#4500\n"
              "A6=|B6=2000*3|C6=#2|D6=#1|E6=#0\n"
              "A7=B|B7=800*4|C7=#1|D7=#0.5|E7=#2800\n"
              "A9=日期|B9=2024-05-01\n");
    EXPECT_EQ(cuts.bordered, "A4 B4 C4 D4 E4 A5 B5 C5 D5 E5 A6 B6 C6 D6 E6 A7 B7 C7 D7 E7 ");
    EXPECT_EQ(cuts.centred, "A1 B1 C1 D1 E1 ");
    EXPECT_EQ(cuts.merges, "A1:E1 ");
    // The file adds the 5 pixels of a cell's margin, of 7 to a character.
    const std::map<int, double> widths = {{2, 45}, {3, 4}, {4, 9}, {5, 9}};
    ASSERT_EQ(cuts.widths.size(), widths.size());
    for (const auto& [column, width] : widths) EXPECT_NEAR(cuts.widths.at(column), width + 5.0 / 7, 0.01);

    const XlsxSheet totals = reader.Sheet(2);
    EXPECT_EQ(totals.cells,
              "A1=材料优化统计表|B1=|C1=|D1=\n"
              "A3=   工程名称：|B3=阳光花园\n"
              "A4=   材料名称|B4=     数量|C4=   优化比率|D4=   采购数量\n"
              "A5=A|B5=#3|C5=#0.75|D5=\n"
              "A6=B|B6=#1|C6=#0.5|D6=\n"
              "A7=总经理签字|C7=主管签字\n"
              "A9=日期|C9=2024-05-01\n");
    EXPECT_EQ(totals.bordered, "A4 B4 C4 D4 A5 B5 C5 D5 A6 B6 C6 D6 ");
    EXPECT_EQ(totals.merges, "A1:D1 ");
    EXPECT_TRUE(totals.widths.empty());
    EXPECT_THROW(PlanWorkbook(plan_).Save(folder_ / "missing" / "plan.xlsx"), FileError);
}

TEST_F(PlanTest, IsPrintedWithAColumnForThePen) {
    const auto text = [](const Report& report) {
        std::string all = report.title + "/" + report.heading[0][0] + "/";
        for (const ReportColumn& column : report.columns) all += column.head + "|";
        for (const auto& row : report.rows) {
            all += "/";
            for (const std::string& cell : row) all += cell + "|";
        }
        return all;
    };
    EXPECT_EQ(text(dsYHB(*store_, "阳光花园")),
              "材料优化表/工程名称：阳光花园/材料名称|切割规格|数量|优化比率|剩余料长|实际需求量|/"
              "A|1500|1|0.25|4500||/|2000*3|2|1|0||/B|800*4|1|0.5|2800||");
    EXPECT_EQ(text(dsYHBT(*store_, "")),
              "材料优化统计表/工程名名称：/材料名称|数  量|总体优化率|实际需求量|/A|3|0.75||/B|1|0.5||");
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
        const std::string message = Refusal([&] { ReadDemandFile(folder / "a.DDD", rows); });
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

}  // namespace
}  // namespace kalvane::test
