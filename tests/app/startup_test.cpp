#include "app/startup.h"

#include <unistd.h>

#include "app/daily_copies.h"
#include "app/instance_lock.h"
#include "app/run_marker.h"
#include "app/store_setup.h"
#include "numeric/error.h"
#include "platform/files.h"
#include "store/dated_copies.h"
#include "support/main_store.h"
#include "support/raw_store.h"

namespace kalvane::test {
namespace {

class StartupTest : public MainStoreTest {
  protected:
    void SetUp() override {
        CreateStore(folder_ / kTemplateStoreName, StoreKind::Main);
        Insert({"图 (编号) values(7)"});
        store_.reset();
        state_.folder = folder_.Path();
    }
    void Start() {
        state_.mainConnection.reset();
        notice_.shown.clear();
        OpenMainStore(state_, notice_);
    }
    std::string Drawings() { return test::Rows(state_.Main(), "Select 编号 from 图"); }

    /// Overwrites the last page: the store still opens.
    void Damage() {
        const std::string bytes = ReadFile(file_);
        WriteFileAtomically(file_, bytes.substr(0, bytes.size() - 4096) + std::string(4096, 'x'));
    }

    AppState state_;
};

TEST_F(StartupTest, ADamagedStoreIsReplacedAfterAYesAndNeverLost) {
    Start();
    KeepDailyCopies(state_, notice_);
    KeepDailyCopies(state_, notice_);
    EXPECT_EQ(CopiesOf(file_).size(), 1U) << "one a day";
    state_.Main().Execute("Insert into 图 (编号) values(8)");
    const std::filesystem::path copy = KeepCopy(file_);
    Damage();
    const std::string damaged = ReadFile(file_);
    Start();
    EXPECT_TRUE(notice_.shown.empty()) << "only an unclean end makes it look";
    std::filesystem::remove(CopiesOf(file_).back());
    KeepDailyCopies(state_, notice_);
    EXPECT_NE(notice_.shown.at(0).find("以前的副本都还在"), std::string::npos) << notice_.shown[0];
    EXPECT_TRUE(state_.storesAreDoubtful);
    EXPECT_EQ(CopiesOf(file_), std::vector{copy});

    state_.checkStores = true;
    Start();  // answered with no
    ASSERT_EQ(notice_.shown.size(), 1U);
    EXPECT_TRUE(notice_.shown[0].starts_with("出错！|‘材料’数据库打开出错！\n")) << notice_.shown[0];
    EXPECT_NE(notice_.shown[0].find(TimeOfCopy(copy)), std::string::npos) << notice_.shown[0];
    EXPECT_THROW(state_.Main(), StoreError);
    EXPECT_EQ(ReadFile(file_), damaged);

    notice_.answer = true;
    WriteFileAtomically(KeepCopy(folder_ / kTemplateStoreName), "");  // no copy of this store
    Start();
    EXPECT_EQ(notice_.shown.size(), 1U);
    EXPECT_EQ(Drawings(), "7\n8");
    std::string kept;
    for (const auto& entry : std::filesystem::directory_iterator(folder_ / "副本")) {
        if (entry.path().filename().string().starts_with("cl-损坏-")) kept = ReadFile(entry.path());
    }
    EXPECT_EQ(kept, damaged);
}

TEST_F(StartupTest, OfTheCopiesTheNewestSoundOneIsOffered) {
    const std::filesystem::path sound = KeepCopy(file_);
    WriteFileAtomically(KeepCopy(file_), "a letter");
    WriteFileAtomically(file_, "a letter");
    // What an old crash left to undo would be played into the copy.
    WriteFileAtomically(folder_ / "cl.mdb-journal", std::string(600, 'x'));
    notice_.answer = true;
    Start();
    EXPECT_NE(notice_.shown.at(0).find(TimeOfCopy(sound)), std::string::npos) << notice_.shown[0];
    EXPECT_EQ(Drawings(), "7");

    std::filesystem::remove_all(folder_ / "副本");
    WriteFileAtomically(file_, "a letter");
    Start();
    EXPECT_NE(notice_.shown.at(0).find("没有可用的副本"), std::string::npos);
    EXPECT_EQ(ReadFile(file_), "a letter");
}

TEST_F(StartupTest, AMissingStoreComesBackFromItsCopyAndIsNotMadeAnew) {
    const std::filesystem::path copy = KeepCopy(file_);
    std::filesystem::remove(file_);
    WriteFileAtomically(folder_ / "cl.mdb-journal", std::string(600, 'x'));
    CreateMissingStores(folder_.Path());
    EXPECT_TRUE(std::filesystem::exists(folder_ / kStockStoreName)) << "this one has no copy";
    Start();  // answered with no
    EXPECT_NE(notice_.shown.at(0).find("“cl.mdb”不见了。\n\n最近的副本是 " + TimeOfCopy(copy)),
              std::string::npos)
        << notice_.shown[0];
    EXPECT_FALSE(std::filesystem::exists(file_));
    notice_.answer = true;
    Start();
    EXPECT_EQ(Drawings(), "7");
}

/// Takes the right to write away from a folder, and from this process the rights of an administrator.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(std::filesystem::path folder) : folder_(std::move(folder)) {
        std::filesystem::permissions(folder_, std::filesystem::perms(0555));
        if (user_ == 0 && seteuid(65534) != 0) ADD_FAILURE() << "the rights stay";
    }
    ~ReadOnlyFolder() {
        if (user_ == 0 && seteuid(0) != 0) ADD_FAILURE() << "the rights do not come back";
        std::filesystem::permissions(folder_, std::filesystem::perms(0755));
    }

  private:
    std::filesystem::path folder_;
    uid_t user_ = geteuid();
};

TEST_F(StartupTest, AReadOnlyFolderIsToldOnceAndCanBeLookedAt) {
    RunRaw(file_, "PRAGMA user_version=1");  // of an older program, and it cannot be brought forward
    const ReadOnlyFolder readOnly(folder_.Path());
    InstanceLock lock(folder_.Path());
    EXPECT_TRUE(lock.Acquire());
    Start();
    EXPECT_TRUE(notice_.shown.empty());
    KeepDailyCopies(state_, notice_);
    WarnOfReadOnlyFolder(state_, notice_);
    EXPECT_EQ(notice_.shown.size(), 1U);
    EXPECT_EQ(Drawings(), "7");
    EXPECT_THROW(state_.Main().Execute("Insert into 图 (编号) values(8)"), StoreError);
    EXPECT_EQ(Drawings(), "7");
}

TEST_F(StartupTest, CopiesThatCannotBeReadAreNoReasonToEnd) {
    KeepCopy(file_);
    std::filesystem::permissions(folder_ / "副本", std::filesystem::perms(0));
    {
        const ReadOnlyFolder readOnly(folder_.Path());  // without the rights of an administrator
        Start();
        EXPECT_EQ(Drawings(), "7");
        EXPECT_TRUE(CopiesOf(file_).empty());
    }
    std::filesystem::permissions(folder_ / "副本", std::filesystem::perms(0755));
}

TEST_F(StartupTest, AMissingColumnIsNamed) {
    RunRaw(file_, "ALTER TABLE \"图\" RENAME COLUMN \"图名\" TO \"名\"");
    Start();
    EXPECT_NE(notice_.shown.at(0).find("里没有表“图”的列“图名”"), std::string::npos) << notice_.shown[0];
}

TEST_F(StartupTest, AStoreThatIsMovedAwayIsNotCalledReadOnly) {
    Start();
    std::filesystem::rename(file_, folder_ / "moved.mdb");
    try {
        state_.Main().Execute("Insert into 图 (编号) values(8)");
        ADD_FAILURE() << "written to a file that is not there";
    } catch (const StoreError& error) {
        EXPECT_NE(std::string(error.what()).find("被移走或改名"), std::string::npos) << error.what();
    }
}

TEST(RunMarker, ExistsAfterAnUncleanEndOnly) {
    const TempFolder folder;
    {
        RunMarker second(folder.Path());  // ends before it begins, as a second program does
        RunMarker run(folder.Path());
        EXPECT_FALSE(run.Exists());
        run.Set();
        EXPECT_TRUE(second.Exists());
    }
    EXPECT_FALSE(RunMarker(folder.Path()).Exists());
    RunMarker(folder / "missing").Set();  // told by what fails next
}

}  // namespace
}  // namespace kalvane::test
