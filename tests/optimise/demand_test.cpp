#include "optimise/demand.h"

#include "optimise/run.h"
#include "support/main_store.h"
#include "support/refusal.h"

namespace kalvane::test {
namespace {

constexpr const char* kDemand = "Select 编号,名称,规格,长度,数量 from 优化数据";

/// Type 7 has two profile rows and a steel row, type 8 a profile row.
class DemandTest : public MainStoreTest {
  protected:
    DemandTest() {
        Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(7,1,'框横','X60','1.7','B-50')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(7,2,'框竖','X60','2','h-h1-60')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(8,1,'扇','X80','1.7','B/2+0.5')",
                "窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(7,3,'衬钢','G30','0.25','B-100')",
                "标注 (schar,Mcnum,MC) values('1500',21,'B')", "标注 (schar,Mcnum,MC) values('1800',21,'H')",
                "标注 (schar,Mcnum,MC) values(' 600 ',21,'H1')"});
    }

    std::string Gather(const std::vector<DemandWindow>& windows) {
        GatherDemand(*store_, windows);
        return Rows(kDemand);
    }

    static DemandWindow Window(const char* count, const char* type, const char* id) {
        return {"C1", "客厅", "", count, type, id};
    }
};

TEST_F(DemandTest, PlainWindowsMultiplyTheUnroundedQuantity) {
    Insert({"优化数据 (规格) values('old')", "优化结果 (材料名称) values('old')"});
    // 1.7 * 2 = 3.4 and 0.25 * 2 = 0.5 go to the nearest whole number in the store, ties to even.
    EXPECT_EQ(Gather({Window("2", "7", "21")}), "1|框横|X60|1450|3\n2|框竖|X60|1140|4\n3|衬钢|G30|1400|0");
    EXPECT_EQ(Rows("Select * from 优化结果"), "");
    EXPECT_EQ(ListMaterials(*store_), (std::vector<std::string>{"G30", "X60"}));
    // A type without rows, and one that is gone, add nothing.
    EXPECT_EQ(Gather({Window("2", "99", "21")}), "");
}

TEST_F(DemandTest, CompositesCutTheQuantityFirst) {
    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(22,8,'B','1000','左',3)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(22,8,'B','1001','右',1)"});
    // Floor of 1.7, times 2, times 3 and 1; the members come in the order of their names.
    EXPECT_EQ(Gather({Window("2", "-5", "22")}), "~|扇|X80|501|2\n~|扇|X80|500|6");
    // A 樘数 that is no number counts as 0 here, but is refused in a plain window.
    EXPECT_EQ(Gather({Window("", "-5", "22")}), "~|扇|X80|501|0\n~|扇|X80|500|0");
    EXPECT_THROW(Gather({Window("", "8", "22")}), NumericError);
}

TEST_F(DemandTest, AFormulaRowWithoutANumberIsReportedWithItsWindowType) {
    Insert({"窗型材 (窗号,名称,规格,数量,计算公式) values(8,'b','X60','1','6')",
            "门窗 (编号,名称) values(8,'推拉窗')"});
    EXPECT_EQ(
        Refusal([&] { Gather({Window("1", "8", "21")}); }),
        "门窗类型“推拉窗”有一行公式没有“编号”，请在“窗型设计”中打开这个类型的“门窗公式设计”并保存一次。");
}

TEST_F(DemandTest, FailureKeepsTheRowsBefore) {
    Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(9,1,'a','X60','1','5')",
            "窗型材 (窗号,编号,规格,数量,计算公式) values(9,2,'X60','1','6')"});
    EXPECT_THROW(Gather({Window("1", "9", "21"), Window("1", "7", "21")}), NumericError);
    EXPECT_EQ(Rows(kDemand), "1|a|X60|5|1");
    EXPECT_THROW(Gather({Window("40000", "9", "21")}), NumericError);
}

}  // namespace
}  // namespace kalvane::test
