// A run on a disk that gives out: the engine is told to take no more pages, or no writing at all.

#include <sqlite3.h>

#include "optimise/manual_run.h"
#include "optimise/run.h"
#include "platform/error.h"
#include "store/command_scope.h"
#include "support/main_store.h"

namespace kalvane::test {

/// Keeps the engine's side of the connection that is opened last.
sqlite3* opened = nullptr;
int KeepOpened(sqlite3* database, const char**, const void*) {
    opened = database;
    return SQLITE_OK;
}

constexpr const char* kMaterial = "A material of a long name";

class RunFaultTest : public MainStoreTest {
  protected:
    RunFaultTest() {
        const auto hook = reinterpret_cast<void (*)()>(&KeepOpened);
        sqlite3_auto_extension(hook);
        store_ = std::make_unique<Connection>(file_, StoreKind::Main);
        sqlite3_cancel_auto_extension(hook);
        settings_.CLC = 6000;
        settings_.NODES = 20;
        // All lengths differ, and so do all bars.
        for (int i = 0; i < 2400; ++i) rows_.push_back({std::to_string(600 + i), "1"});
        InCommand(*store_, [this] {
            for (const ManualRow& row : rows_) {
                Insert({std::string("优化数据 (规格,长度,数量) values('") + kMaterial + "'," + row.length +
                        ",1)"});
            }
        });
    }

    static int Pragma(const std::string& text) {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(opened, ("PRAGMA " + text).c_str(), -1, &statement, nullptr), SQLITE_OK);
        const int value = sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int(statement, 0) : 0;
        sqlite3_finalize(statement);
        return value;
    }
    static void LimitPages(int pages) { Pragma("max_page_count=" + std::to_string(pages)); }
    std::string Plan() { return Rows("Select 材料名称,切割规格,数量,优化比率,剩余料长 from 优化结果"); }

    OptimiseSettings settings_;
    std::vector<ManualRow> rows_;
};

TEST_F(RunFaultTest, AFullDiskLeavesTheRowsBeforeAndTheNextRunWorks) {
    constexpr int kNoLimit = 1000000;
    for (const std::int16_t scheme : {std::int16_t{0}, std::int16_t{1}}) {
        const auto run = [&] {
            return RunOptimisation(*store_, settings_, scheme, {kMaterial}, notice_, {});
        };
        run();
        const std::string whole = Plan();
        ASSERT_TRUE(notice_.shown.empty());
        std::size_t longest = 0;
        for (const int morePages : {0, 2}) {
            store_->Execute("Delete from 优化结果");
            Insert({"优化结果 (材料名称) values('old')"});
            ASSERT_EQ(sqlite3_exec(opened, "VACUUM", nullptr, nullptr, nullptr), SQLITE_OK);
            LimitPages(Pragma("page_count") + morePages);
            run();
            ASSERT_EQ(notice_.shown.size(), 1u);
            EXPECT_EQ(notice_.shown[0].rfind("出错|", 0), 0u) << notice_.shown[0];
            const std::string kept = Plan();
            EXPECT_GT(kept.size(), longest);
            EXPECT_LT(kept.size(), whole.size());
            EXPECT_EQ(whole.substr(0, kept.size()), kept);
            longest = kept.size();
            notice_.shown.clear();

            LimitPages(kNoLimit);
            run();
            EXPECT_EQ(Plan(), whole);
            EXPECT_TRUE(notice_.shown.empty());
        }
    }
}

TEST_F(RunFaultTest, AManualRunOnAFullDiskThrowsOrShowsAndKeepsItsRows) {
    RunManual(*store_, settings_, 0, "M", rows_, notice_, {});
    const std::string whole = Plan();
    store_->Execute("Delete from 优化结果");
    ASSERT_EQ(sqlite3_exec(opened, "VACUUM", nullptr, nullptr, nullptr), SQLITE_OK);
    LimitPages(Pragma("page_count") + 1);
    EXPECT_THROW(RunManual(*store_, settings_, 0, "M", rows_, notice_, {}), StoreError);
    EXPECT_FALSE(Plan().empty());
    EXPECT_EQ(whole.substr(0, Plan().size()), Plan());
    EXPECT_EQ(Rows("Select count(*) from 优化数据"), "2400");
    RunManual(*store_, settings_, 1, "M", rows_, notice_, {});
    ASSERT_EQ(notice_.shown.size(), 1u);
    EXPECT_EQ(notice_.shown[0].rfind("出错|", 0), 0u);
    EXPECT_FALSE(Plan().empty());
}

TEST_F(RunFaultTest, AReadOnlyDiskKeepsTheOldPlan) {
    Insert({"优化结果 (材料名称) values('old')"});
    const std::string old = Plan();
    Pragma("query_only=1");
    EXPECT_EQ(RunOptimisation(*store_, settings_, 0, {kMaterial}, notice_, {}), RunEnd::Failed);
    ASSERT_EQ(notice_.shown.size(), 1u);
    EXPECT_EQ(notice_.shown[0].rfind("出错|", 0), 0u);
    EXPECT_EQ(Plan(), old);
    Pragma("query_only=0");
    EXPECT_EQ(RunOptimisation(*store_, settings_, 0, {kMaterial}, notice_, {}), RunEnd::Finished);
}

}  // namespace kalvane::test
