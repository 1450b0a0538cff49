#include "store/dated_copies.h"

#include <sys/stat.h>

#include <ctime>
#include <fstream>
#include <set>

#include "numeric/error.h"
#include "platform/files.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

constexpr std::chrono::hours kDay(24);

/// Noon of a day, in the time zone of the tests.
CopyTime Noon(int y, unsigned month, unsigned day) {
    std::tm local = {};
    local.tm_year = y - 1900;
    local.tm_mon = static_cast<int>(month) - 1;
    local.tm_mday = static_cast<int>(day);
    local.tm_hour = 12;
    local.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&local));
}

class DatedCopiesTest : public MainStoreTest {
  protected:
    void SetUp() override {
        Insert({"图 (编号) values(7)"});
        store_.reset();
    }
    /// Days of the copies ("20260305"), newest first.
    std::vector<std::string> Days(CopyTime now) {
        std::vector<std::string> days;
        for (const auto& copy : CopiesOf(file_, now)) days.push_back(copy.filename().string().substr(3, 8));
        return days;
    }
    /// Overwrites the last page: the store still opens.
    void Damage() {
        const std::string bytes = ReadFile(file_);
        WriteFileAtomically(file_, bytes.substr(0, bytes.size() - 4096) + std::string(4096, 'x'));
    }
};

TEST_F(DatedCopiesTest, OfEitherKindTheNewestFiveStay) {
    const CopyTime now = Noon(2026, 3, 5);
    KeepDailyCopy(file_, now - kDay);
    std::vector<std::filesystem::path> changes;
    for (int i = 0; i < 7; ++i) {
        changes.insert(changes.begin(), KeepCopy(file_, now));
        EXPECT_EQ(CopiesOf(file_, now).front(), changes.front());
    }
    KeepDailyCopy(file_, now);  // those from before a change are not the day's
    KeepDailyCopy(file_, now);
    changes.resize(5);
    std::vector<std::filesystem::path> all = CopiesOf(file_, now);
    ASSERT_EQ(all.size(), 7U);
    EXPECT_EQ(std::vector(all.begin() + 1, all.end() - 1), changes);
}

TEST_F(DatedCopiesTest, OfTheDailyOnesOneAWeekStaysForEightWeeks) {
    // Weeks of seven days from 1970-01-01, a Thursday: 2026-03-05 is the first day of one.
    const CopyTime last = Noon(2026, 3, 5);
    for (int day = 80; day >= 0; --day) KeepDailyCopy(file_, last - day * kDay);
    EXPECT_EQ(Days(last), (std::vector<std::string>{"20260305", "20260304", "20260303", "20260302",
                                                    "20260301", "20260225", "20260218", "20260211",
                                                    "20260204", "20260128", "20260121"}));
}

TEST_F(DatedCopiesTest, AWrongClockDropsNothingThatWasJustMade) {
    const CopyTime now = Noon(2026, 3, 5);
    // The clock ran ten years ahead for a start: that copy is never the newest afterwards.
    KeepDailyCopy(file_, Noon(2036, 3, 5));
    for (int day = 0; day < 3; ++day) KeepDailyCopy(file_, now + day * kDay);
    const CopyTime later = now + 2 * kDay;
    EXPECT_EQ(Days(later), (std::vector<std::string>{"20260307", "20260306", "20260305", "20360305"}));
    EXPECT_NE(TimeOfCopy(CopiesOf(file_, later).back(), later).find("晚于现在"), std::string::npos);
    EXPECT_EQ(TimeOfCopy("/x/cl-20240229-080509-123.mdb", later), "2024-02-29 08:05:09");

    // It fell back: five copies seem to be later, among them those of an earlier program.
    for (const auto& copy : CopiesOf(file_, later)) std::filesystem::remove(copy);
    for (int i = 0; i < 5; ++i) {
        std::ofstream(folder_ / ("副本/cl-2026030" + std::to_string(i) + "-120000-000.mdb")) << i;
    }
    const CopyTime past = Noon(2010, 1, 1);
    const std::filesystem::path made = KeepCopy(file_, past);
    EXPECT_TRUE(std::filesystem::exists(made));
    EXPECT_EQ(CopiesOf(file_, past).front(), made);
    KeepDailyCopy(file_, past);
    EXPECT_EQ(Days(past).at(0), "20100101");
    EXPECT_EQ(CopiesOf(file_, past).size(), 2U + 4U) << "five daily ones, and the one from before a change";
}

TEST_F(DatedCopiesTest, ADamagedStoreIsNotCopiedAndNoCopyIsDroppedForIt) {
    const CopyTime now = Noon(2026, 3, 5);
    for (int day = 8; day > 0; --day) KeepDailyCopy(file_, now - day * kDay);
    const auto before = CopiesOf(file_, now);
    Damage();
    for (int day = 0; day < 5; ++day) {
        EXPECT_THROW(KeepDailyCopy(file_, now + day * kDay), StoreDamage);
        EXPECT_THROW(KeepCopy(file_, now + day * kDay), StoreDamage);
    }
    EXPECT_EQ(CopiesOf(file_, now), before);
}

TEST_F(DatedCopiesTest, ACopyHasTheRightsOfItsStore) {
    const auto users = folder_ / kUserStoreName;
    CreateStore(users, StoreKind::Users);
    const auto rights = [](const std::filesystem::path& file) {
        struct stat state = {};
        stat(file.c_str(), &state);
        return state.st_mode & 0777U;
    };
    EXPECT_EQ(rights(users), 0600U);
    EXPECT_EQ(rights(KeepCopy(users)), 0600U);
    ASSERT_EQ(chmod(users.c_str(), 0644), 0);  // as an earlier program made it
    Connection(users, StoreKind::Users);
    EXPECT_EQ(rights(users), 0600U);
}

TEST_F(DatedCopiesTest, WhatKilledProgramsLeftIsRemoved) {
    KeepCopy(file_);
    const std::set<std::string> stray = {"cl.mdb.tmp123", "cl.mdb.tmp123-journal", "a.xlsx.tmp7",
                                         "副本/cl-x.mdb.tmp9"};
    const std::set<std::string> kept = {"cl.mdb-journal", "notes.tmp", ".tmp5", "a.tmp12b"};
    for (const auto& names : {stray, kept}) {
        for (const std::string& name : names) std::ofstream(folder_ / name) << "x";
    }
    RemoveUnfinishedFiles(folder_.Path());
    for (const std::string& name : stray) EXPECT_FALSE(FileExists(folder_ / name)) << name;
    for (const std::string& name : kept) EXPECT_TRUE(FileExists(folder_ / name)) << name;
    EXPECT_EQ(CopiesOf(file_).size(), 1U);
}

}  // namespace
}  // namespace kalvane::test
