#include "store/connection.h"

#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "numeric/error.h"
#include "store/command_scope.h"
#include "store/helpers.h"
#include "store/table_writer.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

class StoreTest : public MainStoreTest {
  protected:
    /// The text of the refusal, or empty when the statement was taken.
    std::string Refusal(const std::string& sql) {
        try {
            store_->Execute(sql);
            return "";
        } catch (const StoreError& failure) {
            return failure.what();
        }
    }
};

TEST_F(StoreTest, TakesTheDialectOfItsStatements) {
    for (const char* sql : {
             "Insert into outxc (名称,规格,长度,数量) values('框B','K60',1500.5,2)",
             "Insert Into OUTXC (名称,规格,长度,数量) Values('框H','K60',.5,3)",
             "Insert into OutXC (名称,规格,长度,数量) values('扇B','A,(1)',1E+03,-4)",
             "Insert into Line (x1,y1,x2,y2,Bn) values(1,2,3.25,-4.5,7)",
             "Insert into OutJS (XH,LX,Width,Height,Count,MJ,DJ,JE,BN) "
             "Values('C1','客厅',1500,1000,3,1.5,100,.12345,1)",
             "Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,px,py,count) values(-1,-267,'B','0','主10',1,2,1)",
             "Insert into 标注2 (MCBN,CBN,MC,MCZ,CMC,px,py,count) values(-1,5,'B','0','甲11',1,2,2-5)",
         }) {
        EXPECT_EQ(Refusal(sql), "") << sql;
    }
    const struct {
        const char* sql;
        const char* rows;
    } kTable[] = {
        {"Select 规格,sum(长度*数量) from OutXC Group by 规格", "A,(1)|-4000\nK60|3002.5"},
        {"select 数量/2 from OutXC where 名称='框H'", "1.5"},
        {"Select xh,lx,width,height,count,(width*height)/1000000*count,dj,je from OutJS order by xh,lx",
         "C1|客厅|1500|1000|3|4.5|100|0.1234"},
        {"Select * from LINE where bn=7", "1|2|3.25|-4.5|7"},
        {"Select CBN,CMC from 标注2 where MCBN=-1 Group By CBN,CMC", "-267|主10\n5|甲11"},
        {"Select 名称 from OutXC where 规格='k60'", ""},
        {"Select 名称 from OutXC order by 名称 Desc", "框H\n框B\n扇B"},
    };
    for (const auto& row : kTable) EXPECT_EQ(Rows(row.sql), row.rows) << row.sql;

    store_->Execute("Delete * from 标注2  where MCBN=-1 and cbn<0");
    store_->Execute("Update 标注2 set MCBN=12, count=count*2+10 where MCBN=-1");
    EXPECT_EQ(Rows("Select MCBN,count from 标注2"), "12|4");
}

TEST_F(StoreTest, RefusesWhatIsNoStatementAndChangesNothing) {
    store_->Execute("Insert into 图 (编号,图名) values(1,'一')");
    for (const char* sql : {
             "Insert into 图 (编号,图名) values(2,'O'Brien')",
             "Insert into 图 (编号,图名) values(2,'x');Delete * from 图",
             "Insert into 图 (编号,图名) values(2,'a'),(3,'b')",
             "Insert into 图 (编号,图名) values(1.2.3,'x')",
             "Insert into 图 (编号,图名) values((Select 1 from 图),'x')",
             "Insert into 图 (编号,图名) values(2)",
             "Insert into 没有 (编号) values(2)",
             "Update 图 set 图名=新 where 编号=1",
             "Delete * from 图 --",
             "Attach 'x' as y",
             "",
         }) {
        EXPECT_NE(Refusal(sql), "") << sql;
    }
    EXPECT_THROW(store_->OpenCursor("Select load_extension('x') from 图"), StoreError);
    EXPECT_THROW(store_->OpenCursor("Select * from 图 union Select * from 图"), StoreError);
    for (const char* sql : {
             "Delete * from 图 where 编号=",
             "Delete * from 图 where 编号=1 and",
             "Delete * from 图 where 编号=1 or ",
             "Delete * from 图 where not",
             "Delete * from 图 where 编号 in (1,)",
             "Delete * from 图 where 编号 between 1 and",
             "Delete * from 图 where (编号=1",
             "Delete * from 图 where 编号=-",
             "Insert into 图 (编号,图名) values(,'x')",
             "Insert into 图 (编号,图名) values(2*,'x')",
             "Update 图 set 编号=,图名='x' where 编号=1",
             "Update 图 set 编号= where 编号=1",
             "Update 图 set 编号=1,",
         }) {
        EXPECT_EQ(Refusal(sql), "语句不完整，数字栏不能为空。") << sql;
    }
    for (const char* sql : {"Select * from 图 where 编号= order by 编号", "Select * from 图 where and 编号=1",
                            "Select 编号, from 图", "Select * from 图 order by 编号,", "Select max( from 图",
                            "Select * from 图 where 编号=1e999", "Select * from 图 where max(编号)=1"}) {
        EXPECT_FALSE(OpenQuery(*store_, sql).has_value()) << sql;
    }
    const std::string numbers[] = {std::string(400, '9'), "-1e999",
                                   std::string(200, '(') + "1" + std::string(200, ')')};
    for (const std::string& number : numbers) {
        const std::string refusal = Refusal("Delete * from 图 where 编号<" + number);
        EXPECT_TRUE(refusal.starts_with("语句")) << refusal;
    }
    EXPECT_EQ(Rows("Select * from 图"), "1|一");
}

TEST_F(StoreTest, ComparesFloat32ColumnsIn32Bits) {
    Insert({"优化结果 (材料名称,数量,优化比率,剩余料长) values('甲',3,12345.67,0.1)",
            "优化结果 (材料名称,数量,优化比率,剩余料长) values('乙',7,0.3,0.3)"});
    const std::pair<const char*, const char*> kTable[] = {
        {"优化比率=12345.67", "甲"},
        {"12345.67=优化比率", "甲"},
        {"优化比率='12345.67'", "甲"},
        {"优化比率<>12345.67", "乙"},
        {"优化比率<=0.3", "乙"},
        {"优化比率>=12345.67", "甲"},
        {"not 优化比率<12345.67", "甲"},
        {"优化比率>12345.67 or 优化比率<0.3", ""},
        {"优化比率=剩余料长", "乙"},
        {"剩余料长*3=0.3", "甲"},  // 3 times the 32-bit 0.1, cut to 32 bits
        {"优化比率=剩余料长*1", "乙"},
        {"优化比率 between 12345.67 and 12345.67 and 数量=3", "甲"},
        {"优化比率 not in (1,12345.67)", "乙"},
        {"优化比率<1e39 and 优化比率>-1e39", "甲\n乙"},  // numbers that no 32-bit float holds
        {"优化比率 is not null and 优化比率='多'", ""},
        {"数量/2=1.5", "甲"},
    };
    for (const auto& [condition, names] : kTable) {
        EXPECT_EQ(Rows("Select 材料名称 from 优化结果 where " + std::string(condition)), names) << condition;
    }
}

TEST_F(StoreTest, ConvertsByTheColumnsType) {
    const std::string kLongest(50, 'x');
    const struct {
        std::string value;
        const char* column;
        const char* stored;  // null: refused
    } kTable[] = {{"2.5", "樘数", "2"},
                  {"32767.4", "樘数", "32767"},
                  {"32767.5", "樘数", nullptr},
                  {"2147483648", "洞口宽", nullptr},
                  {"'12'", "洞口宽", "12"},
                  {"'十二'", "洞口宽", nullptr},
                  {"''", "洞口宽", nullptr},
                  {"Null", "洞口宽", "~"},
                  {"1+1", "洞口宽", "2"},
                  {"12.50", "说明", "12.5"},
                  {"'a''b'", "说明", "a'b"},
                  {"'" + kLongest + "'", "说明", kLongest.c_str()},
                  {"'" + kLongest + "y'", "说明", nullptr}};
    for (const auto& row : kTable) {
        store_->Execute("Delete * from 工程门窗");
        const std::string refusal = Refusal("Insert into 工程门窗 (编号," + std::string(row.column) +
                                            ") values(1," + row.value + ")");
        EXPECT_EQ(refusal.empty(), row.stored != nullptr) << row.value << " " << refusal;
        EXPECT_EQ(Rows("Select " + std::string(row.column) + " from 工程门窗"),
                  row.stored == nullptr ? "" : row.stored)
            << row.value;
    }
    EXPECT_EQ(Refusal("Insert into 标注 (MC) values('上亮窗扇高')"), "");  // five characters, not five bytes
    // A 32-bit float is kept as one and reads back with seven digits.
    store_->Execute("Insert into 优化结果 (材料名称,优化比率) values('甲',0.926666666666667)");
    EXPECT_EQ(Rows("Select 优化比率 from 优化结果"), "0.9266667");
    EXPECT_NE(Refusal("Insert into 优化结果 (优化比率) values(1E+39)"), "");
    const std::pair<const char*, const char*> kAmounts[] = {
        {"0.00015", "0.0002"},        {"'0.00025'", "0.0002"},
        {"0.00015*1", "0.0002"},      {"-922337203685477.5807", "-922337203685478"},
        {"922337203685477.5808", ""}, {"1+922337203685477", ""}};
    for (const auto& [written, stored] : kAmounts) {
        store_->Execute("Delete * from OutTJ");
        const std::string refusal = Refusal("Insert into OutTJ (金额) values(" + std::string(written) + ")");
        EXPECT_EQ(refusal.find("数值超出范围") != std::string::npos, *stored == '\0') << refusal;
        EXPECT_EQ(Rows("Select 金额 from OutTJ"), stored) << written;
    }
}

TEST_F(StoreTest, KeepsDatesAsDaysAndComparesThem) {
    CreateStore(folder_ / kStockStoreName, StoreKind::Stock);
    store_ = std::make_unique<Connection>(folder_ / kStockStoreName, StoreKind::Stock);
    const std::pair<const char*, const char*> kDates[] = {{"'2002-3-4'", "2002-03-04"},
                                                          {"'2002年3月5日 8:00'", "2002-03-05 08:00:00"},
                                                          {"37319", "2002-03-04"},
                                                          {"37319+0.5", "2002-03-04 12:00:00"},
                                                          {"Null", "~"},
                                                          {"'不是日期'", ""},
                                                          {"'2002'", ""},
                                                          {"''", ""},
                                                          {"3000000", ""}};  // beyond the year 9999
    int number = 0;
    for (const auto& [written, read] : kDates) {
        const std::string id = std::to_string(++number);
        const std::string refusal =
            Refusal("Insert into 入库单 (单据编号,采购日期) values(" + id + "," + written + ")");
        EXPECT_EQ(refusal.empty(), *read != '\0') << written << refusal;
        EXPECT_EQ(Rows("Select 采购日期 from 入库单 where 单据编号=" + id), read) << written;
    }
    EXPECT_EQ(store_->OpenCursor("Select 采购日期 from 入库单").Field(0).Number(), 37319);
    const std::pair<const char*, const char*> kConditions[] = {
        {"采购日期=37319", "1\n3"},
        {"采购日期='2002/3/4'", "1\n3"},
        {"'2002-03-04 12:00'<=采购日期", "2\n4"},
        {"采购日期 between '2002-3-4' and '2002-3-5'", "1\n3\n4"},
        {"采购日期 in ('2002-3-5 08:00', 37319)", "1\n2\n3"},
        {"采购日期+1>='2002-3-6'", "2"},
        {"采购日期 is null", "5"},
    };
    for (const auto& [condition, numbers] : kConditions) {
        EXPECT_EQ(Rows("Select 单据编号 from 入库单 where " + std::string(condition)), numbers) << condition;
    }
    EXPECT_EQ(Refusal("Delete * from 入库单 where 采购日期='昨天'"),
              "“昨天”不是日期，日期应写成 2002-03-04。");

    TableWriter writer(*store_, "出库单");
    CopyTableRows(store_->OpenCursor("Select 单据编号,说明,说明,说明,采购日期 from 入库单"), writer);
    EXPECT_EQ(Rows("Select 出库日期 from 出库单 where 单据编号<3"), "2002-03-04\n2002-03-05 08:00:00");
    writer.AddRow(std::vector<FieldValue>{{}, {}, {}, {}, FieldValue(std::string("2002年3月6日"))});
    EXPECT_EQ(Rows("Select 单据编号 from 出库单 where 出库日期=37321"), "~");
}

TEST_F(StoreTest, HelpersFollowTheRows) {
    EXPECT_EQ(GetNextId(*store_, "图"), "1");
    store_->Execute("Insert into 图 (编号,图名) values(7,'甲')");
    store_->Execute("Insert into 图 (编号) values(9)");
    EXPECT_EQ(GetNextId(*store_, "图"), "10");
    store_->Execute("Delete * from 图 where 编号=9");
    EXPECT_EQ(GetNextId(*store_, "图"), "8");

    FieldSlots slots;
    FetchCatalogueRow(*store_, "图", "图名", "O'B", slots);
    LoadRowById(*store_, "图", "7", slots);
    EXPECT_EQ(slots[0] + slots[1], "7甲");
    EXPECT_THROW(LoadRowById(*store_, "图", "9", slots), StoreError);
    EXPECT_TRUE(RowExists(*store_, "图", "编号", "7", "N"));
    EXPECT_FALSE(RowExists(*store_, "图", "图名", "7", "T"));
    EXPECT_EQ(MakeKey(" 3 ", " 12 ") + KeyKind("312") + KeyId("312") + KeyKind("") + KeyId(""), "312312");
    EXPECT_FALSE(OpenQuery(*store_, "Select * from 图 where 编号=").has_value());
}

TEST_F(StoreTest, CommandKeepsWhatCameBeforeAFailureAndIsOneStepForAKill) {
    EXPECT_THROW(InCommand(*store_,
                           [&] {
                               store_->Execute("Insert into 图 (编号,图名) values(1,'甲')");
                               InCommand(*store_,
                                         [&] { store_->Execute("Insert into 图 (编号) values(2)"); });
                               store_->Execute("Insert into 图 (编号) values(x)");
                           }),
                 StoreError);
    EXPECT_EQ(Rows("Select 编号 from 图"), "1\n2");

    store_.reset();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        Connection connection(file_, StoreKind::Main);
        connection.Execute("Insert into 图 (编号) values(3)");
        CommandScope scope(connection);
        connection.Execute("Delete * from 图 where 编号=1");
        connection.Execute("Insert into 图 (编号) values(4)");
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    store_ = std::make_unique<Connection>(file_, StoreKind::Main);
    EXPECT_EQ(Rows("Select 编号 from 图"), "1\n2\n3");
}

TEST_F(StoreTest, OpensItsOwnFilesOnly) {
    EXPECT_THROW(Connection(folder_ / "missing.mdb", StoreKind::Main), StoreError);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "missing.mdb"));
    const std::string text =
        "this is a letter and no database, and long enough to be looked at by the engine";
    std::ofstream(folder_ / "letter.mdb") << text;
    EXPECT_THROW(Connection(folder_ / "letter.mdb", StoreKind::Main), StoreError);
    EXPECT_EQ(std::filesystem::file_size(folder_ / "letter.mdb"), text.size());
    CreateStore(folder_ / "user.mdb", StoreKind::Users);
    EXPECT_THROW(Connection(folder_ / "user.mdb", StoreKind::Main), StoreError);
    EXPECT_THROW(CreateStore(file_, StoreKind::Main), StoreError);
}

}  // namespace
}  // namespace kalvane::test
