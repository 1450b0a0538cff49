#include "store/migration.h"

#include "numeric/error.h"
#include "store/dated_copies.h"
#include "support/main_store.h"
#include "support/raw_store.h"

namespace kalvane::test {
namespace {

class MigrationTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"图 (编号,图名) values(7,'甲')"});
        store_.reset();
    }
    std::string Drawings(const std::filesystem::path& file) {
        Connection store(file, StoreKind::Main);
        return test::Rows(store, "Select * from 图");
    }
};

TEST_F(MigrationTest, BringsAnOlderStoreForwardAfterACopy) {
    MigrateStore(file_, StoreKind::Main, notice_);  // of this version
    EXPECT_TRUE(CopiesOf(file_).empty());

    RunRaw(file_, "PRAGMA user_version=0");
    const MigrationStep steps[] = {{0, StoreKind::Main, "DROP TABLE \"图\""},  // that far it has come
                                   {1, StoreKind::Main, "UPDATE \"图\" SET \"图名\"='乙'"},
                                   {1, StoreKind::Users, "DROP TABLE user"}};
    MigrateStore(file_, StoreKind::Main, notice_, steps, 1);
    EXPECT_EQ(Drawings(file_), "7|乙");
    ASSERT_EQ(CopiesOf(file_).size(), 1U);
    EXPECT_EQ(Drawings(CopiesOf(file_)[0]), "7|甲");
    MigrateStore(file_, StoreKind::Main, notice_, steps, 1);
    EXPECT_EQ(CopiesOf(file_).size(), 1U);
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(MigrationTest, TextsBecomeDatesAndThoseThatAreNoneStayAndAreNamed) {
    const std::filesystem::path stock = folder_ / kStockStoreName;
    CreateStore(stock, StoreKind::Stock);
    RunRaw(
        stock,
        "INSERT INTO \"入库单\" (\"单据编号\",\"采购日期\") VALUES (1,'2002-3-4'),(2,'不是日期'),(3,37319),"
        "(4,NULL);INSERT INTO \"出库单\" (\"出库日期\") VALUES ('2002年3月4日 12:00'),('昨天');"
        "PRAGMA user_version=1");
    MigrateStore(stock, StoreKind::Stock, notice_);
    ASSERT_EQ(CopiesOf(stock).size(), 1U);
    EXPECT_EQ(notice_.shown,
              std::vector<std::string>{"提示|数据库文件“CangKu.mdb”已升级。下面的内容不能转换，原样保留："
                                       "\n入库单，单据编号 2：采购日期“不是日期”不是日期"
                                       "\n出库单，单据编号 空：出库日期“昨天”不是日期"
                                       "\n升级前的数据库另存为“副本/" +
                                       CopiesOf(stock)[0].filename().string() + "”。"});
    Connection store(stock, StoreKind::Stock);
    EXPECT_EQ(test::Rows(store, "Select 采购日期 from 入库单"), "2002-03-04\n不是日期\n2002-03-04\n~");
    EXPECT_EQ(test::Rows(store, "Select 单据编号 from 入库单 where 采购日期=37319"), "1\n3");
    EXPECT_EQ(test::Rows(store, "Select 出库日期 from 出库单"), "2002-03-04 12:00:00\n昨天");
}

TEST_F(MigrationTest, AFailingStepChangesNothingAndANewerStoreIsRefused) {
    RunRaw(file_, "PRAGMA user_version=0");
    const MigrationStep steps[] = {{1, StoreKind::Main, "UPDATE \"图\" SET \"图名\"='乙'; DROP TABLE x"}};
    EXPECT_THROW(MigrateStore(file_, StoreKind::Main, notice_, steps, 1), StoreError);
    EXPECT_EQ(Drawings(file_), "7|甲");

    RunRaw(file_, "PRAGMA user_version=" + std::to_string(kSchemaVersion + 1));
    MigrateStore(file_, StoreKind::Main, notice_);
    EXPECT_THROW(Connection(file_, StoreKind::Main), StoreError);
}

}  // namespace
}  // namespace kalvane::test
