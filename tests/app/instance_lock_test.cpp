#include "app/instance_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <optional>

#include "platform/error.h"

namespace kalvane {
namespace {

class InstanceLockTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "lockXXXXXX";
        folder_ = mkdtemp(pattern.data());
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path folder_;
};

TEST_F(InstanceLockTest, IsHeldByOneAndFreedWithIt) {
    std::optional<InstanceLock> first(folder_);
    InstanceLock second(folder_);
    EXPECT_TRUE(first->Acquire());
    EXPECT_TRUE(first->Acquire());  // asking again changes nothing
    EXPECT_FALSE(second.Acquire());
    first.reset();
    EXPECT_TRUE(second.Acquire());
}

TEST_F(InstanceLockTest, AnotherFolderIsAnotherProgram) {
    std::filesystem::create_directory(folder_ / "b");
    InstanceLock first(folder_);
    InstanceLock second(folder_ / "b");
    EXPECT_TRUE(first.Acquire());
    EXPECT_TRUE(second.Acquire());
}

TEST_F(InstanceLockTest, AKilledProgramLeavesNoLock) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        InstanceLock lock(folder_);
        const char held = lock.Acquire() ? 'y' : 'n';
        if (write(ready[1], &held, 1) != 1) _exit(1);
        pause();
        _exit(0);
    }
    char held = 0;
    ASSERT_EQ(read(ready[0], &held, 1), 1);
    EXPECT_EQ(held, 'y');
    InstanceLock lock(folder_);
    EXPECT_FALSE(lock.Acquire());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(lock.Acquire());
    close(ready[0]);
    close(ready[1]);
}

TEST_F(InstanceLockTest, AMissingFolderIsTold) {
    InstanceLock lock(folder_ / "missing");
    EXPECT_THROW(lock.Acquire(), FileError);
}

}  // namespace
}  // namespace kalvane
