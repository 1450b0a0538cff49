// What is found in formulas that the evaluator takes without a word.

#include "design/formula_check.h"

#include "design/formula_reading.h"
#include "design/type_check.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

using enum MaterialClass;

TEST(FormulaReading, NamesSignsAndBrackets) {
    const std::vector<std::string> labels = {"B", "H", "b1", " 高 "};
    const struct {
        const char* formula;
        const char* complaints;
    } rows[] = {
        {"", ""},
        {"b-2*60+(H - 高)/2", ""},
        {"B1+b", ""},
        {"2*SQR(B)+sin(30)+SQRT (H)", ""},
        {"(B-2", ""},  // a bracket that is not closed does no harm
        {"B)", "右括号多于左括号，无法计算"},
        {"B-H2", "图中没有标注“H2”"},
        {"BH", "图中没有标注“BH”"},
        {"B-2*kh1", "宏代码“kh1”还没有替换成数值"},
        {"2KH1+宽", "宏代码“KH1”还没有替换成数值；图中没有标注“宽”"},
        {"2B", "“2B”中间缺少运算符，代入后数字会连在一起"},
        {"1.2.3+B", "“1.2.3”不是数，会被略去"},
        {"SIN+2", "函数“SIN”后面没有“(”，整条公式按 0 计算"},
        {"B^2", "“^”不是公式的符号，只会把两边隔开"},
        {"（B）", "“（”不是公式的符号，只会把两边隔开；“）”不是公式的符号，只会把两边隔开"},
    };
    for (const auto& row : rows) {
        std::string text;
        for (const FormulaComplaint& complaint : ReadFormula(row.formula, labels)) {
            text += (text.empty() ? "" : "；") + complaint.text;
        }
        EXPECT_EQ(text, row.complaints) << row.formula;
    }
    EXPECT_EQ(LabelsIn("b1+h", labels), (std::vector<std::string>{"b1", "H"})) << "b1 holds no B";
}

class FormulaCheck : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"型材 (系列编号,编号,型材型号) values(1,1,'PK')",
                "型钢 (厂家编号,编号,型钢规格) values(1,1,'GK')",
                "玻璃 (厂家编号,编号,玻璃名称) values(1,1,'白玻')",
                "配件 (厂家编号,编号,配件规格) values(1,1,'S')", "Strings (X1,Y1,Chars,Bn) values(1,1,'B',7)",
                "Strings (X1,Y1,Chars,Bn) values(2,1,'H',7)", "Strings (X1,Y1,Chars,Bn) values(2,2,'b',7)",
                "Strings (X1,Y1,Chars,Bn) values(2,2,'b1',7)",
                "工程门窗 (工程编号,门窗编号,编号) values(1,3,5)",
                "工程门窗 (工程编号,门窗编号,编号) values(1,3,6)",
                "标注 (px,py,schar,Mcnum,MC) values(1,1,'900',5,'B')",
                "标注 (px,py,schar,Mcnum,MC) values(1,1,'1000',6,'B')",
                "标注 (px,py,schar,Mcnum,MC) values(1,1,'1200',6,'h')"});
    }
    static std::string Lines(const std::vector<FormulaFinding>& findings) {
        std::string lines;
        for (const FormulaFinding& finding : findings) lines += FindingLine(finding) + "\n";
        return lines;
    }
};

TEST_F(FormulaCheck, EachCellIsMarkedForWhatIsWrongWithIt) {
    FormulaLists lists;
    lists[Profile] = {{"框", "PK", "2", "B"}, {"框'", "pk", "2", "B)"}};
    lists[Steel] = {{"钢", "PK", "2", "KH1"}};
    lists[Panel] = {{"白玻", "1", "B", "H"}, {"白玻 ", "1块", "B^2", "H"}};
    lists[Fitting] = {{"锁", "S", "", "0123456789一"}};
    const std::vector<FormulaFinding> findings = FindingsOfLists(lists, CatalogueCodes(*store_), {"B", "H"});
    EXPECT_EQ(Lines(findings),
              "门窗型材第2行 名称：含有单引号“'”，无法保存\n"
              "门窗型材第2行 规格：材料库中没有“pk”\n"
              "门窗型材第2行 计算公式：右括号多于左括号，无法计算\n"
              "门窗型钢第1行 规格：材料库中没有“PK”\n"
              "门窗型钢第1行 计算公式：宏代码“KH1”还没有替换成数值\n"
              "门窗板材第2行 名称：材料库中没有“白玻 ”\n"
              "门窗板材第2行 数量：“1块”不是整数，无法保存\n"
              "门窗板材第2行 长公式：“^”不是公式的符号，只会把两边隔开\n"
              "门窗配件第1行 单位：超过 10 个字符，无法保存\n");
    EXPECT_EQ(LinesOf(findings, FindingKind::NoCode, 1), "门窗型材第2行 规格：材料库中没有“pk”\n……共 3 处");
    EXPECT_EQ(LinesOf(findings, FindingKind::BadPiece, 1), "");
}

TEST_F(FormulaCheck, PiecesAreTriedWithTheSizesOfTheLatestWindow) {
    std::vector<TestLabel> labels = LabelsToTest(*store_, "3", "7");
    ASSERT_EQ(labels.size(), 3U) << "b is B once more";
    EXPECT_EQ(labels[0].value + " " + labels[1].value + " " + labels[2].value, "1000 1200 ");
    const TestValues values(labels);
    EXPECT_EQ(RowValues(Profile, {"", "", "2", "B-2*60"}, values), "数量 = 2，计算公式 = 880");
    EXPECT_EQ(RowValues(Panel, {"", "1", "b1", "H)"}, values),
              "长公式 = ？（缺少试算值），宽公式 = ？（无法计算）");

    FormulaLists lists;
    lists[Profile] = {{"框", "PK", "2", "B-1000"}, {"框", "PK", "0.9", "B"}, {"框", "PK", "2", "b1-9999"}};
    lists[Panel] = {{"白玻", "1", "H", "B"}, {"白玻", "1", "B+1", "H"}, {"白玻", "0", "500-B", "H"}};
    lists[Fitting] = {{"锁", "S", "B/1900", "把"}, {"锁", "S", "B/2100", "把"}};
    EXPECT_EQ(Lines(PiecesThatCannotBe(lists, values)),
              "门窗型材第1行 计算公式：算出来是 0\n"
              "门窗型材第2行 数量：算出来是 0.9，不足一件\n"  // rounded down
              "门窗板材第2行 长公式：1001×1200，比洞口 1000×1200 大\n"
              "门窗板材第3行 数量：算出来是 0，不足一件\n"
              "门窗板材第3行 长公式：算出来是 -500\n"
              "门窗配件第2行 数量：算出来是 0.4761905，不足一件\n");  // 0.526 rounds to 1
}

TEST_F(FormulaCheck, AllTypesAreSearchedForWhatOutputsWillMiss) {
    Insert({"门窗 (系列编号,编号,名称,图号) values(1,3,'固定',7)",
            "门窗 (系列编号,编号,名称) values(1,4,'无图')",
            "窗型材 (窗号,编号,规格,数量,计算公式) values(3,1,'PK','2','B+b1')",
            "窗型材 (窗号,编号,规格,数量,计算公式) values(3,2,'PX','2','B)^2')",
            "窗配件 (窗号,编号,规格,数量) values(4,1,'S','B')"});
    std::string lines;
    for (const TypeFinding& each : FindingsOfAllTypes(*store_)) {
        lines += each.type + " " + FindingLine(each.finding) + "\n";
    }
    EXPECT_EQ(lines,
              "固定 门窗型材第2行 规格：材料库中没有“PX”\n"
              "固定 门窗型材第2行 计算公式：右括号多于左括号，无法计算\n"
              "无图 门窗配件第1行 数量：图中没有标注“B”\n");
}

}  // namespace
}  // namespace kalvane::test
