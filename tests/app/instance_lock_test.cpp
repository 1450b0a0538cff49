#include "app/instance_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <optional>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace kalvane {
namespace {

TEST(InstanceLock, IsHeldByOneAndFreedWithIt) {
    const test::TempFolder folder;
    std::optional<InstanceLock> first(folder.Path());
    InstanceLock second(folder.Path());
    EXPECT_TRUE(first->Acquire());
    EXPECT_TRUE(first->Acquire());  // asking again changes nothing
    EXPECT_FALSE(second.Acquire());
    first.reset();
    EXPECT_TRUE(second.Acquire());
}

TEST(InstanceLock, AKilledProgramLeavesNoLock) {
    const test::TempFolder folder;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        InstanceLock lock(folder.Path());
        const char held = lock.Acquire() ? 'y' : 'n';
        if (write(ready[1], &held, 1) != 1) _exit(1);
        pause();
        _exit(0);
    }
    char held = 0;
    ASSERT_EQ(read(ready[0], &held, 1), 1);
    EXPECT_EQ(held, 'y');
    InstanceLock lock(folder.Path());
    EXPECT_FALSE(lock.Acquire());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(lock.Acquire());
    close(ready[0]);
    close(ready[1]);
}

TEST(InstanceLock, AMissingFolderIsTold) {
    const test::TempFolder folder;
    InstanceLock lock(folder / "missing");
    EXPECT_THROW(lock.Acquire(), FileError);
}

}  // namespace
}  // namespace kalvane
