#include "optimise/project_material.h"

#include "optimise/demand.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

/// A window 1500 x 1800 and its twin, three of the one and one of the other, and a composite of two.
class ProjectMaterialTest : public MainStoreTest {
  protected:
    ProjectMaterialTest() {
        Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'框横','K60','2','B-60')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,2,'框竖','K60','2','H')",
                "窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'衬钢','G1','1','B')",
                "窗板材 (窗号,编号,名称,数量,长公式,宽公式) values(5,1,'5白玻',2,'1000','1000')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,1,'滑轮','L1','4','个  ')",
                "型材 (型材名称,型材型号,型材长度) values('60框料','K60',5800)",
                "工程 (编号,工程名称) values(1,'甲')",
                "工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(1,5,1,'C1',3)",
                "工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(1,5,2,'C2',1)",
                "工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(2,5,3,'C3',50)"});
        for (const char* window : {"1", "2", "3"}) {
            for (const char* label : {"B','1500'", "H','1800'"}) {
                store_->Execute(std::string("Insert into 标注 (MCNUM,MC,schar) Values(") + window + ",'" +
                                label + ")");
            }
        }
    }

    std::string Material(std::int16_t usualBar = 6000) {
        std::string text;
        for (const MaterialNeed& need : MaterialOfProject(*store_, "1", usualBar, notice_)) {
            text += need.kind + "," + need.name + "," + need.code + "," + need.count + need.unit + "," +
                    need.basis + "\n";
        }
        return text;
    }
};

TEST_F(ProjectMaterialTest, BarsAreMetresOverTheBarLength) {
    // Four windows: K60 4 * (2 * 1440 + 2 * 1800) = 25920 mm, over 5800 is 4.47; G1 4 * 1500 = 6000 is just
    // one usual bar; 8 panes; 16 pulleys.
    EXPECT_EQ(Material(),
              "型材,60框料,K60,5支,25.92米÷5.8米\n型钢,衬钢,G1,1支,6米÷6米\n五金件,滑轮,L1,16个,件数\n"
              "板材,5白玻,5白玻,8块,成品块数\n");
    EXPECT_NE(Material(5999).find("型钢,衬钢,G1,2支,6米÷6米"), std::string::npos);
    EXPECT_NE(Material(0).find("型钢,衬钢,G1,4支,段数"), std::string::npos);
    // 8 m² of panes from sheets of 2.44 x 1.83 = 4.4652 m².
    Insert({"玻璃 (玻璃名称,玻璃长,玻璃宽) values('5白玻',2440,1830)"});
    EXPECT_NE(Material().find("5白玻,2块,8平方米÷4.47平方米"), std::string::npos) << Material();
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(ProjectMaterialTest, CompositesCountTheirMembers) {
    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(9,5,'B','1000','左',3)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,Count) values(9,5,'H','1000','左',3)",
            "工程门窗 (工程编号,门窗编号,编号,门窗名称,樘数) values(1,-7,9,'Z1',2)"});
    // And six members: K60 6 * (2 * 940 + 2 * 1000) = 23280 more, 49200 in all; L1 6 * 4 more.
    EXPECT_NE(Material().find("K60,9支,49.2米÷5.8米"), std::string::npos) << Material();
    EXPECT_NE(Material().find("L1,40个"), std::string::npos);
    // A member that fails is named, and the plain windows still count.
    store_->Execute("Update 标注2 set Count=20000");
    store_->Execute("Update 窗配件 set 数量='B*40'");
    EXPECT_NE(Material().find("型钢,衬钢,G1,"), std::string::npos);
    EXPECT_FALSE(notice_.shown.empty());
}

TEST_F(ProjectMaterialTest, APlanCountsWhenItCutsTheseVeryPieces) {
    GatherDemand(*store_, ListDemandWindows(*store_, "1"));
    Insert({"优化结果 (材料名称,切割规格,数量) values('K60','1800*3',4)",
            "优化结果 (材料名称,切割规格,数量) values('K60','1440*4',2)"});
    EXPECT_TRUE(Material().starts_with("型材,60框料,K60,6支,优化结果\n型钢,衬钢,G1,1支,6米÷6米\n"))
        << Material();
    // A plan of another project, or of some of the windows, does not.
    store_->Execute("Update 优化数据 set 数量=数量+1 where 长度=1440");
    EXPECT_TRUE(Material().starts_with("型材,60框料,K60,5支,25.92")) << Material();
}

}  // namespace
}  // namespace kalvane::test
