#include "app/instance_lock.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <optional>

#include "numeric/error.h"
#include "support/temp_folder.h"

namespace kalvane::test {
namespace {

TEST(InstanceLock, IsHeldByOneAndFreedWithItAlsoByAKill) {
    const TempFolder folder;
    EXPECT_THROW(InstanceLock(folder / "missing").Acquire(), FileError);
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
    std::optional<InstanceLock> lock(folder.Path());
    InstanceLock another(folder.Path());
    EXPECT_FALSE(lock->Acquire());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(lock->Acquire());
    EXPECT_TRUE(lock->Acquire());  // asking again changes nothing
    EXPECT_FALSE(another.Acquire());
    lock.reset();
    EXPECT_TRUE(another.Acquire());
    close(ready[0]);
    close(ready[1]);
}

}  // namespace
}  // namespace kalvane::test
