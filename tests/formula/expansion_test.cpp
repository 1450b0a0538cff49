#include "formula/expansion.h"

#include "formula/labels.h"
#include "platform/error.h"
#include "store/store_files.h"
#include "support/recording_notice.h"
#include "support/temp_folder.h"

namespace kalvane {
namespace {

class ExpansionTest : public testing::Test {
  protected:
    void SetUp() override {
        CreateStore(folder / "cl.mdb", StoreKind::Main);
        store = std::make_unique<Connection>(folder / "cl.mdb", StoreKind::Main);
        for (const char* sql : {
                 "Insert into 窗型材 (窗号,编号,名称,规格,数量,计算公式) "
                 "values(5,1,'框B','K60','2.9','b-60')",
                 "Insert into 窗型材 (窗号,编号,名称,规格,数量,计算公式) "
                 "values(5,2,'框H','K60','0-1.5','h-h1-60')",
                 "Insert into 窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'衬钢','G1','1','B/7')",
                 "Insert into 窗板材 (窗号,编号,名称,数量,长公式,宽公式) "
                 "values(5,1,'5白玻',2,'B-185','H-183')",
                 "Insert into 窗配件 (窗号,编号,名称,规格,数量,单位) values(5,1,'滑轮','L1','2.5','个  ')",
                 "Insert into 窗配件 (窗号,编号,名称,规格,数量,单位) values(5,2,'锁','S1','2.9','把')",
                 "Insert into 标注 (MCNUM,MC,Px,Py,schar) Values(1,'B',10,20,'1500')",
                 "Insert into 标注 (MCNUM,MC,Px,Py,schar) Values(1,'H',10,20,'1800')",
                 "Insert into 标注 (MCNUM,MC,Px,Py,schar) Values(1,'H1',10,20,'600')",
             }) {
            store->Execute(sql);
        }
    }

    std::string Plain(const WindowToExpand& window) {
        std::string text;
        ExpandPlain(*store, window, notice, Collect(text));
        return text;
    }

    std::string Composite(const WindowToExpand& window) {
        std::string text;
        ExpandComposite(*store, window, Collect(text));
        return text;
    }

    static BillSink Collect(std::string& text) {
        return [&text](const BillRow& row) {
            text += row.name + "|" + row.spec + "|" + row.length + "|" + row.width + "|" + row.quantity +
                    "|" + row.unit + "\n";
        };
    }

    test::TempFolder folder;
    std::unique_ptr<Connection> store;
    test::RecordingNotice notice;
};

TEST_F(ExpansionTest, PlainWindowGoesDownForBarsAndToTheNearestForFittings) {
    EXPECT_FALSE(IsComposite({"1", "5", "3"}));
    EXPECT_EQ(Plain({"1", "5", "3"}),
              "框B|K60|1440||6|\n"   // 2 x 3
              "框H|K60|1140||-6|\n"  // -1.5 goes down to -2
              "衬钢|G1|214.2857||3|\n"
              "滑轮|L1|||6|个  \n"  // 2.5 to the even 2
              "锁|S1|||9|把\n"      // 2.9 to 3
              "5白玻||1315|1617|6|\n");
    EXPECT_EQ(Plain({"1", "5", "十樘"}).substr(0, 18), "框B|K60|1440||0|\n");
    EXPECT_EQ(Plain({"1", "99", "3"}), "");
    EXPECT_TRUE(notice.shown.empty());
}

TEST_F(ExpansionTest, PlainWindowEndsAtAFailureAndKeepsTheRowsBefore) {
    store->Execute("Update 窗配件 set 数量='99999' where 编号=1");
    const std::string rows = Plain({"1", "5", "1"});
    EXPECT_TRUE(rows.ends_with("衬钢|G1|214.2857||1|\n")) << rows;
    EXPECT_EQ(notice.shown, std::vector<std::string>{"出错！|溢出"});
    store->Execute("Update 窗配件 set 数量='1',单位=Null where 编号=1");
    EXPECT_EQ(Plain({"1", "5", "1"}), rows);
    std::string counted;
    ExpandPlain(*store, {"1", "5", "1"}, notice, Collect(counted), MissingUnit::CountsZero);
    EXPECT_NE(counted.find("滑轮|L1|||0|\n锁|S1|||3|把\n"), std::string::npos) << counted;
    store->Execute("Update 窗型材 set 规格=Null where 编号=2");
    EXPECT_EQ(Plain({"1", "5", "1"}), "框B|K60|1440||2|\n");
    store->Execute("Update 窗型材 set 计算公式='b)' where 编号=1");
    EXPECT_EQ(Plain({"1", "5", "1"}), "");
}

TEST_F(ExpansionTest, CompositeMultipliesByTheMembersCount) {
    for (const char* sql : {
             "Delete * from 窗型材 where 编号=2",
             "Delete * from 窗型钢",
             "Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,px,py,count) values(7,5,'B','1000','甲10',0,0,3)",
             "Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,px,py,count) values(7,5,'H','900','甲10',0,0,3)",
             "Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,px,py,count) values(7,5,'B','500','甲11',0,0,1)",
         }) {
        store->Execute(sql);
    }
    EXPECT_TRUE(IsComposite({"7", "-267", "2"}));
    // Member 甲11 has no label H, which vanishes from "H-183": an absent operand less 183.
    const std::string expected =
        "框B|K60|940||12|\n滑轮|L1|||12|个  \n锁|S1|||18|把\n5白玻||815|717|12|\n"
        "框B|K60|440||4|\n滑轮|L1|||4|个  \n锁|S1|||6|把\n5白玻||315|-183|4|\n";
    EXPECT_EQ(Composite({"7", "-267", "2"}), expected);
    EXPECT_THROW(Composite({"7", "-267", "两"}), NumericError);
    // A member whose rows the lookup misses keeps the labels and the count of the one before it.
    store->Execute("Insert into 标注2 (MCBN,CBN,MC,MCZ,count) values(7,6,'B','1',9)");
    store->Execute("Insert into 窗型材 (窗号,编号,名称,规格,数量,计算公式) values(6,1,'扇B','K70','1','B')");
    EXPECT_EQ(Composite({"7", "-267", "2"}), expected + "扇B|K70|500||2|\n");
}

}  // namespace
}  // namespace kalvane
