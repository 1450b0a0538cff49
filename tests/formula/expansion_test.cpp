#include "formula/expansion.h"

#include "formula/composite.h"
#include "numeric/error.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class ExpansionTest : public MainStoreTest {
  protected:
    ExpansionTest() {
        Insert({"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'框B','K60','2.9','b-60')",
                "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,2,'框H','K60','0-1.5','h-h1-60')",
                "窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'衬钢','G1','1','B/7')",
                "窗板材 (窗号,编号,名称,数量,长公式,宽公式) values(5,1,'5白玻',2,'B-185','H-183')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,1,'滑轮','L1','2.5','个  ')",
                "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,2,'锁','S1','2.9','把')",
                "标注 (MCNUM,MC,schar) Values(1,'B','1500')", "标注 (MCNUM,MC,schar) Values(1,'H','1800')",
                "标注 (MCNUM,MC,schar) Values(1,'H1','600')"});
    }

    std::string Plain(const WindowToExpand& window) {
        std::string text;
        FormulaRows rows(*store_);
        ExpandPlain(*store_, rows, window, notice_, Collect(text));
        return text;
    }

    std::string Composite(const WindowToExpand& window) {
        std::string text;
        FormulaRows rows(*store_);
        ExpandComposite(*store_, rows, window, Collect(text));
        return text;
    }

    static BillSink Collect(std::string& text) {
        return [&text](const BillRow& row) {
            text += row.name + "|" + row.code + "|" + row.length + "|" + row.width + "|" + row.quantity +
                    "|" + row.unit + "\n";
        };
    }
};

TEST_F(ExpansionTest, PlainWindowGoesDownForBarsAndToTheNearestForFittings) {
    EXPECT_EQ(Plain({"1", "5", "3"}),
              "框B|K60|1440||6|\n"   // 2 x 3
              "框H|K60|1140||-6|\n"  // -1.5 goes down to -2
              "衬钢|G1|214.2857||3|\n"
              "滑轮|L1|||6|个  \n"  // 2.5 to the even 2
              "锁|S1|||9|把\n"      // 2.9 to 3
              "5白玻||1315|1617|6|\n");
    EXPECT_EQ(Plain({"1", "5", "十樘"}).substr(0, 18), "框B|K60|1440||0|\n");
    EXPECT_EQ(Plain({"1", "99", "3"}), "");
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(ExpansionTest, PlainWindowEndsAtAFailureAndKeepsTheRowsBefore) {
    store_->Execute("Update 窗配件 set 数量='99999' where 编号=1");
    const std::string rows = Plain({"1", "5", "1"});
    EXPECT_TRUE(rows.ends_with("衬钢|G1|214.2857||1|\n")) << rows;
    EXPECT_EQ(notice_.shown, std::vector<std::string>{"出错！|溢出"});
    store_->Execute("Update 窗配件 set 数量='1',单位=Null where 编号=1");
    EXPECT_EQ(Plain({"1", "5", "1"}), rows);
    store_->Execute("Update 窗型材 set 规格=Null where 编号=2");
    EXPECT_EQ(Plain({"1", "5", "1"}), "框B|K60|1440||2|\n");
    store_->Execute("Update 窗型材 set 计算公式='b)' where 编号=1");
    EXPECT_EQ(Plain({"1", "5", "1"}), "");
}

TEST_F(ExpansionTest, CompositeMultipliesByTheMembersCount) {
    for (const char* sql : {"Delete * from 窗型材 where 编号=2", "Delete * from 窗型钢"})
        store_->Execute(sql);
    Insert({"标注2 (MCBN,CBN,MC,MCZ,CMC,count) values(7,5,'B','1000','甲10',3)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,count) values(7,5,'H','900','甲10',3)",
            "标注2 (MCBN,CBN,MC,MCZ,CMC,count) values(7,5,'B','500','甲11',1)"});
    // Member 甲11 has no label H, which vanishes from "H-183": an absent operand less 183.
    const std::string expected =
        "框B|K60|940||12|\n滑轮|L1|||12|个  \n锁|S1|||18|把\n5白玻||815|717|12|\n"
        "框B|K60|440||4|\n滑轮|L1|||4|个  \n锁|S1|||6|把\n5白玻||315|-183|4|\n";
    EXPECT_EQ(Composite({"7", "-267", "2"}), expected);
    EXPECT_THROW(Composite({"7", "-267", "两"}), NumericError);
    // A member whose rows the lookup misses keeps the labels and the count of the one before it.
    Insert({"标注2 (MCBN,CBN,MC,MCZ,count) values(7,6,'B','1',9)",
            "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(6,1,'扇B','K70','1','B')"});
    EXPECT_EQ(Composite({"7", "-267", "2"}), expected + "扇B|K70|500||2|\n");
}

// A window with number 0 is plain for its material, but its editor is that for composites.
TEST(Composite, FollowsFromTheTypeNumber) {
    const auto is = [](const char* number) {
        return std::pair(IsComposite(number), OpensAsComposite(number));
    };
    EXPECT_EQ(is("-267"), std::pair(true, true));
    EXPECT_EQ(is("0"), std::pair(false, true));
    EXPECT_EQ(is(""), std::pair(false, true));
    EXPECT_EQ(is("5"), std::pair(false, false));
}

}  // namespace
}  // namespace kalvane::test
