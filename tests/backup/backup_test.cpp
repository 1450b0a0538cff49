#include "backup/backup.h"

#include "backup/restore.h"
#include "numeric/error.h"
#include "platform/files.h"
#include "store/dated_copies.h"
#include "support/killed_child.h"
#include "support/main_store.h"
#include "support/raw_store.h"
#include "support/refusal.h"
#include "support/store_content.h"

namespace kalvane::test {
namespace {

class BackupTest : public MainStoreTest {
  protected:
    void SetUp() override {
        CreateStore(template_, StoreKind::Main);
        FillMain(*store_, 3);
    }

    void Backup() { BackupMainStore(*store_, template_, backup_, {}); }
    /// A store that differs from the backup in every table.
    void EmptyStore() {
        for (const Table& table : TablesOf(StoreKind::Main)) {
            store_->Execute("Delete * from " + std::string(table.name));
        }
        Insert({"图 (编号,图名) values(99,'新图')", "arc (Bn) values(99)", "优化数据 (编号) values(99)"});
    }
    /// What the refusal says; empty when there was none.
    std::string Restore(const std::filesystem::path& file) {
        done_.clear();
        notice_.shown.clear();
        return Refusal([&] {
            RestoreMainStore(
                *store_, file, [this](int tables) { done_.push_back(tables); }, notice_);
        });
    }
    const std::filesystem::path template_ = folder_ / kTemplateStoreName;
    const std::filesystem::path backup_ = folder_ / "a.MBK";
    std::vector<int> done_;
};

TEST_F(BackupTest, TablesOfNoLastingDataAreNotInIt) {
    EXPECT_EQ(BackupPath("/b", "abc"), "/b/abc.MBK");
    EXPECT_EQ(BackupPath("/b/", "abc."), "/b/abc.");
    Backup();
    Connection backup(backup_, StoreKind::Main);
    EXPECT_EQ(test::Rows(backup, "Select * from 优化数据") + test::Rows(backup, "Select * from OutXC"), "");
    EmptyStore();
    EXPECT_EQ(Restore(backup_), "");
    EXPECT_EQ(BackedUpContent(*store_), BackedUpContent(backup));
    EXPECT_EQ(Rows("Select 编号 from 优化数据"), "99");
    EXPECT_EQ(done_.size(), 25U);
    EXPECT_EQ(done_.back(), 25);
}

TEST_F(BackupTest, AFailedOneLeavesTheGoodOneAndNoLitter) {
    Backup();
    const std::string good = ReadFile(backup_);
    const auto files = [this] {
        return std::distance(std::filesystem::directory_iterator(folder_.Path()), {});
    };
    const auto before = files();
    RunRaw(template_, "DROP TABLE \"型材\"");
    EXPECT_THROW(Backup(), StoreError);
    EXPECT_THROW(BackupMainStore(*store_, folder_ / "none.mdb", backup_, {}), FileError);
    EXPECT_THROW(BackupMainStore(*store_, template_, folder_ / "none" / "x.MBK", {}), FileError);
    for (const char* name : {kMainStoreName, kTemplateStoreName}) {
        EXPECT_THROW(BackupMainStore(*store_, template_, folder_ / name, {}), FileError) << name;
    }
    EXPECT_EQ(ReadFile(backup_), good);
    EXPECT_EQ(files(), before);
}

TEST_F(BackupTest, AFailingTableStopsItAndTheCopyIsOffered) {
    Backup();
    EmptyStore();
    Insert({"窗配件 (编号) values(99)", "窗型钢 (编号) values(99)"});
    const auto before = ContentOf(*store_);
    RunRaw(backup_, "DROP TABLE \"窗配件\"");  // the twelfth
    for (const bool putBack : {true, false}) {
        notice_.answer = putBack;
        EXPECT_EQ(Restore(backup_), "");
        EXPECT_EQ(done_.size(), 11U);
        ASSERT_EQ(notice_.shown.size(), putBack ? 2U : 1U);
        EXPECT_NE(notice_.shown[0].find("还原到表“窗配件”时出错"), std::string::npos) << notice_.shown[0];
        EXPECT_EQ(ContentOf(*store_) == before, putBack);
    }
    EXPECT_NE(Rows("Select * from 窗板材"), "");       // the eleventh
    EXPECT_EQ(Rows("Select * from 窗配件"), "");       // emptied
    EXPECT_EQ(Rows("Select 编号 from 窗型钢"), "99");  // untouched
    EXPECT_EQ(Rows("Select 图名 from 图"), "新图");
    EXPECT_FALSE(std::filesystem::exists(folder_ / ".kalvane.restore"));
}

TEST_F(BackupTest, WhatIsNoBackupChangesNothing) {
    Backup();
    const auto before = ContentOf(*store_);
    WriteFileAtomically(folder_ / "letter.MBK", std::string(3000, 'x'));
    RunRaw(folder_ / "foreign.MBK", "CREATE TABLE t (a)");
    std::filesystem::copy_file(backup_, folder_ / "newer.MBK");
    RunRaw(folder_ / "newer.MBK", "PRAGMA user_version=" + std::to_string(kSchemaVersion + 1));
    for (const char* name : {"letter.MBK", "foreign.MBK", "newer.MBK", "none.MBK"}) {
        EXPECT_NE(Restore(folder_ / name), "") << name;
    }
    EXPECT_EQ(ContentOf(*store_), before);
    EXPECT_TRUE(notice_.shown.empty());
    EXPECT_TRUE(CopiesOf(file_).empty());
}

TEST_F(BackupTest, NoFileButABackupIsReplacedOrRestored) {
    for (const char* name : {"cl.mdb", "elsewhere/CangKu.mdb", "help.txt", ".kalvane.lock", "副本/a.MBK"}) {
        const std::filesystem::path target = folder_ / name;
        std::filesystem::create_directories(target.parent_path());
        if (!FileExists(target)) WriteFileAtomically(target, "x");
        const std::string before = ReadFile(target);
        EXPECT_THROW(BackupMainStore(*store_, folder_ / kTemplateStoreName, target, {}), FileError) << name;
        EXPECT_EQ(ReadFile(target), before) << name;
    }
    WriteFileAtomically(folder_ / "letter.doc", "Dear Sir");
    EXPECT_TRUE(WouldReplaceOtherFile(folder_ / "letter.doc"));
    EXPECT_FALSE(WouldReplaceOtherFile(folder_ / "none.MBK"));
    Backup();
    EXPECT_FALSE(WouldReplaceOtherFile(backup_));

    EXPECT_NE(Restore(file_).find("是正在使用的数据库"), std::string::npos);
    std::filesystem::remove(folder_ / kTemplateStoreName);
    EXPECT_THROW(BackupMainStore(*store_, folder_ / kTemplateStoreName, folder_ / "b.MBK", {}), FileError);
}

TEST_F(BackupTest, ADamagedStoreIsNotRestoredOver) {
    Backup();
    store_.reset();
    const std::string bytes = ReadFile(file_);
    WriteFileAtomically(file_, bytes.substr(0, bytes.size() - 4096) + std::string(4096, 'x'));
    store_ = std::make_unique<Connection>(file_, StoreKind::Main);
    EXPECT_NE(Restore(backup_).find("所以没有还原"), std::string::npos);
    EXPECT_TRUE(notice_.shown.empty());
}

TEST_F(BackupTest, ARestoreThatAKillCutOffIsOfferedToBeUndone) {
    Backup();
    EmptyStore();
    const auto before = ContentOf(*store_);
    store_.reset();
    for (const bool putBack : {true, false}) {
        RunAndBeKilled([&] {
            Connection store(file_, StoreKind::Main);
            const auto killInTheMiddle = [](int tables) {
                return tables == 12 ? kill(getpid(), SIGKILL) : 0;
            };
            RestoreMainStore(store, backup_, killInTheMiddle, notice_);
        });
        Connection store(file_, StoreKind::Main);
        notice_.answer = putBack;
        notice_.shown.clear();
        OfferToUndoCutRestore(store, notice_);
        EXPECT_EQ(ContentOf(store), before);
        EXPECT_EQ(notice_.shown.size(), putBack ? 2U : 1U);
        OfferToUndoCutRestore(store, notice_);  // asked once
        EXPECT_EQ(notice_.shown.size(), putBack ? 2U : 1U);
    }
    // Cut off behind its last table it has replaced them all, and can still be undone.
    Connection store(file_, StoreKind::Main);
    const std::filesystem::path copy = KeepCopy(file_);
    FillMain(store, 1);
    WriteFileAtomically(folder_ / ".kalvane.restore", copy.string());
    notice_.answer = true;
    OfferToUndoCutRestore(store, notice_);
    EXPECT_EQ(ContentOf(store), before);
}

}  // namespace
}  // namespace kalvane::test
