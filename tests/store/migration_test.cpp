#include "store/migration.h"

#include "numeric/error.h"
#include "store/dated_copies.h"
#include "support/main_store.h"
#include "support/raw_store.h"

namespace kalvane::test {

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
    MigrateStore(file_, StoreKind::Main);  // of this version
    EXPECT_TRUE(CopiesOf(file_).empty());

    RunRaw(file_, "PRAGMA user_version=0");
    const MigrationStep steps[] = {{0, StoreKind::Main, "DROP TABLE \"图\""},  // that far it has come
                                   {1, StoreKind::Main, "UPDATE \"图\" SET \"图名\"='乙'"},
                                   {1, StoreKind::Users, "DROP TABLE user"}};
    MigrateStore(file_, StoreKind::Main, steps, 1);
    EXPECT_EQ(Drawings(file_), "7|乙");
    ASSERT_EQ(CopiesOf(file_).size(), 1U);
    EXPECT_EQ(Drawings(CopiesOf(file_)[0]), "7|甲");
    MigrateStore(file_, StoreKind::Main, steps, 1);
    EXPECT_EQ(CopiesOf(file_).size(), 1U);
}

TEST_F(MigrationTest, AFailingStepChangesNothingAndANewerStoreIsRefused) {
    RunRaw(file_, "PRAGMA user_version=0");
    const MigrationStep steps[] = {{1, StoreKind::Main, "UPDATE \"图\" SET \"图名\"='乙'; DROP TABLE x"}};
    EXPECT_THROW(MigrateStore(file_, StoreKind::Main, steps, 1), StoreError);
    EXPECT_EQ(Drawings(file_), "7|甲");

    RunRaw(file_, "PRAGMA user_version=" + std::to_string(kSchemaVersion + 1));
    MigrateStore(file_, StoreKind::Main);
    EXPECT_THROW(Connection(file_, StoreKind::Main), StoreError);
}

TEST_F(MigrationTest, TheNewestFiveCopiesStay) {
    std::vector<std::filesystem::path> kept;
    for (int i = 0; i < 7; ++i) kept.insert(kept.begin(), KeepCopy(file_));
    kept.resize(5);
    EXPECT_EQ(CopiesOf(file_), kept);
    KeepDailyCopy(file_);  // there is one of today
    EXPECT_EQ(CopiesOf(file_), kept);
    // 2024-02-29, 08:05:09
    EXPECT_EQ(TimeOfCopy("/x/cl-20240229-080509-123.mdb"), "2024-02-29 08:05:09");
}

}  // namespace kalvane::test
