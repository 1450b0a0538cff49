#include "optimise/demand.h"

#include <optional>

#include "optimise/run.h"
#include "platform/error.h"
#include "store/store_files.h"
#include "support/store_rows.h"
#include "support/temp_folder.h"

namespace kalvane {
namespace {

constexpr const char* kDemand = "Select 编号,名称,规格,长度,数量 from 优化数据";

/// Type 7 has two profile rows and a steel row, type 8 a profile row.
class DemandTest : public testing::Test {
  protected:
    DemandTest() {
        CreateStore(folder / kMainStoreName, StoreKind::Main);
        connection.emplace(folder / kMainStoreName, StoreKind::Main);
        const char* rows[] = {
            "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(7,1,'框横','X60','1.7','B-50')",
            "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(7,2,'框竖','X60','2','h-h1-60')",
            "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(8,1,'扇','X80','1.7','B/2+0.5')",
            "窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(7,3,'衬钢','G30','0.25','B-100')",
            "标注 (schar,Mcnum,MC) values('1500',21,'B')",
            "标注 (schar,Mcnum,MC) values('1800',21,'H')",
            "标注 (schar,Mcnum,MC) values(' 600 ',21,'H1')",
        };
        for (const char* row : rows) connection->Execute(std::string("Insert into ") + row);
    }

    std::string Gather(const std::vector<DemandWindow>& windows) {
        GatherDemand(*connection, windows);
        return test::Rows(*connection, kDemand);
    }

    void AddMember(const char* type, const char* position, const char* width, int count) {
        connection->Execute(std::string("Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(22,") + type +
                            ",'B','" + width + "','" + position + "'," + std::to_string(count) + ")");
    }

    static DemandWindow Window(const char* count, const char* type, const char* id) {
        return {"C1", "客厅", "", count, type, id};
    }

    const test::TempFolder folder;
    std::optional<Connection> connection;
};

TEST_F(DemandTest, PlainWindowsMultiplyTheUnroundedQuantity) {
    connection->Execute("Insert into 优化数据 (规格) values('old')");
    connection->Execute("Insert into 优化结果 (材料名称) values('old')");
    // 1.7 * 2 = 3.4 and 0.25 * 2 = 0.5 go to the nearest whole number in the store, ties to even.
    EXPECT_EQ(Gather({Window("2", "7", "21")}), "1|框横|X60|1450|3\n2|框竖|X60|1140|4\n3|衬钢|G30|1400|0");
    EXPECT_EQ(test::Rows(*connection, "Select * from 优化结果"), "");
    EXPECT_EQ(ListMaterials(*connection), (std::vector<std::string>{"G30", "X60"}));
    // A type without rows, and one that is gone, add nothing.
    EXPECT_EQ(Gather({Window("2", "99", "21")}), "");
}

TEST_F(DemandTest, CompositesCutTheQuantityFirst) {
    AddMember("8", "左", "1000", 3);
    AddMember("8", "右", "1001", 1);
    // Floor of 1.7, times 2, times 3 and 1; the members come in the order of their names.
    EXPECT_EQ(Gather({Window("2", "-5", "22")}), "~|扇|X80|501|2\n~|扇|X80|500|6");
    // A 樘数 that is no number counts as 0 here, but is refused in a plain window.
    EXPECT_EQ(Gather({Window("", "-5", "22")}), "~|扇|X80|501|0\n~|扇|X80|500|0");
    EXPECT_THROW(Gather({Window("", "8", "22")}), NumericError);
}

TEST_F(DemandTest, FailureKeepsTheRowsBefore) {
    connection->Execute(
        "Insert into 窗型材 (窗号,编号,名称,规格,数量,计算公式) values(9,1,'a','X60','1','5')");
    connection->Execute("Insert into 窗型材 (窗号,编号,规格,数量,计算公式) values(9,2,'X60','1','6')");
    EXPECT_THROW(Gather({Window("1", "9", "21"), Window("1", "7", "21")}), NumericError);
    EXPECT_EQ(test::Rows(*connection, kDemand), "1|a|X60|5|1");
    EXPECT_THROW(Gather({Window("40000", "9", "21")}), NumericError);
}

TEST_F(DemandTest, ListsTheWindowsOfAProject) {
    connection->Execute(
        "Insert into 工程门窗 (工程编号,门窗编号,编号,门窗名称,门窗类型,樘数) "
        "values(3,-4,21,'C1','客厅',2)");
    connection->Execute("Insert into 工程门窗 (工程编号,门窗编号,编号) values(4,7,22)");
    const std::vector<DemandWindow> windows = ListDemandWindows(*connection, "3");
    ASSERT_EQ(windows.size(), 1u);
    EXPECT_EQ(windows[0].name + "|" + windows[0].type + "|" + windows[0].makeSize + "|" + windows[0].count +
                  "|" + windows[0].windowType + "|" + windows[0].id,
              "C1|客厅||2|-4|21");
    EXPECT_EQ(ListDemandWindows(*connection, "4")[0].count, "");
}

}  // namespace
}  // namespace kalvane
