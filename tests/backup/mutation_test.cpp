// Damaged backups and stores: each is refused or read, and the live store loses nothing by it.

#include <unistd.h>

#include <fstream>
#include <random>

#include "backup/restore.h"
#include "numeric/error.h"
#include "platform/files.h"
#include "project/project_windows.h"
#include "store/dated_copies.h"
#include "support/long_mode.h"
#include "support/main_store.h"
#include "support/raw_store.h"
#include "support/store_content.h"

namespace kalvane::test {
namespace {

class MutationTest : public MainStoreTest {
  protected:
    static constexpr unsigned kMostSeconds = 60;  // of one file, before it counts as hanging
    const int kFiles = IsLongMode() ? 20'000 : 1'000;

    void SetUp() override {
        FillMain(*store_, 2);
        store_.reset();
        // Small pages, so that a mutation meets something.
        RunRaw(file_, "PRAGMA page_size=512;VACUUM");
        whole_ = ReadFile(file_);
        seed_ = IsLongMode() ? std::random_device()() : 1;
        dice_.seed(seed_);
    }

    std::size_t Dice(std::size_t sides) {
        return std::uniform_int_distribution<std::size_t>(0, sides - 1)(dice_);
    }

    /// A copy of the store's bytes with some damage, sometimes of the kind a program or a disk does.
    std::string Mutated() {
        constexpr std::size_t kPage = 512;
        constexpr std::size_t kHeader = 100;
        std::string bytes = whole_;
        for (std::size_t left = 1 + Dice(4); left > 0; --left) {
            const std::size_t page = Dice(bytes.size() / kPage) * kPage;
            switch (Dice(8)) {
                case 0:
                    bytes[Dice(kHeader)] = static_cast<char>(Dice(256));
                    break;
                case 1:
                    bytes.replace(page, kPage, whole_, Dice(whole_.size() / kPage) * kPage, kPage);
                    break;
                case 2:
                    bytes.replace(page, kPage, kPage, Dice(2) == 0 ? '\0' : '\xFF');
                    break;
                case 3:
                    bytes.resize(kPage + Dice(bytes.size() - kPage));
                    break;
                case 4:  // the head of a page: kind, cell count, pointers
                    bytes[page + Dice(24)] = static_cast<char>(Dice(256));
                    break;
                default:
                    bytes[Dice(bytes.size())] = static_cast<char>(Dice(256));
            }
            if (bytes.size() < 2 * kPage) break;
        }
        return bytes;
    }

    void ForEachMutation(const std::function<void(const std::filesystem::path&, const std::string&)>& work) {
        const std::filesystem::path file = folder_ / "mutated.MBK";
        for (int i = 0; i < kFiles && !HasFailure(); ++i) {
            SCOPED_TRACE("seed " + std::to_string(seed_) + ", file " + std::to_string(i));
            alarm(kMostSeconds);
            const std::string bytes = Mutated();
            std::ofstream(file, std::ios::binary) << bytes;
            work(file, bytes);
        }
        alarm(0);
    }

    std::string whole_;
    unsigned seed_ = 0;
    std::mt19937 dice_;
};

TEST_F(MutationTest, ADamagedBackupIsRefusedOrUndone) {
    Connection live(file_, StoreKind::Main);
    const auto before = ContentOf(live);
    notice_.answer = true;  // put the copy back
    int refused = 0;
    int restored = 0;
    ForEachMutation([&](const std::filesystem::path& file, const std::string&) {
        notice_.shown.clear();
        try {
            RestoreMainStore(live, file, {}, notice_);
        } catch (const StoreError&) {
            ++refused;
            EXPECT_EQ(ReadFile(file_), whole_);
            return;
        }
        if (notice_.shown.back() == "提示|数据恢复完毕！") {
            ++restored;
            const std::filesystem::path copy = CopiesOf(file_).front();
            EXPECT_EQ(ReadFile(copy).size(), whole_.size());
            Connection(copy, StoreKind::Main).CheckIntegrity();
        } else {
            EXPECT_EQ(ContentOf(live), before);
        }
        live.CheckIntegrity();
        std::ofstream(file_, std::ios::binary | std::ios::in) << whole_;
    });
    EXPECT_GT(refused, 0);
    EXPECT_GT(restored, 0);
}

TEST_F(MutationTest, ADamagedStoreIsToldOrRead) {
    int refused = 0;
    ForEachMutation([&](const std::filesystem::path& file, const std::string& bytes) {
        try {
            Connection store(file, StoreKind::Main);
            ContentOf(store);
            AddWindow(store, {"C1", "", "1", "1", "1", "", "1", "1", ""}, {});
            store.CheckIntegrity();
        } catch (const Error&) {
            ++refused;
        }
        try {
            Connection(file, StoreKind::Main);
        } catch (const StoreDamage&) {
            EXPECT_EQ(ReadFile(file), bytes);
        } catch (const StoreError&) {
            // A newer version number, for one.
        }
    });
    EXPECT_GT(refused, 0);
}

}  // namespace
}  // namespace kalvane::test
