#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kalvane::test {

/// Runs `work` in a process of its own, which must end by a kill before `work` is done.
template <typename Work>
void RunAndBeKilled(Work work) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
}

}  // namespace kalvane::test
