// A program that is killed while it adds windows: everything it reported as saved is there.

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>
#include <sstream>

#include "project/project_windows.h"
#include "support/long_mode.h"
#include "support/main_store.h"

namespace kalvane::test {
namespace {

using KillTest = MainStoreTest;

constexpr int kMostMicroseconds = 30'000;  // of a round
constexpr int kPatienceMilliseconds = 10'000;

/// Adds windows for ever and writes the number of each that was saved.
[[noreturn]] void AddWindows(const std::filesystem::path& file, int pipe) {
    Connection store(file, StoreKind::Main);
    const std::vector<LabelRow> labels = {{"B", "1500", "1", "2"}, {"H", "1200", "3", "4"}};
    for (;;) {
        const std::string saved =
            AddWindow(store, {"C1", "客厅", "1500", "1200", "2", "", "1", "1", ""}, labels) + "\n";
        if (write(pipe, saved.data(), saved.size()) < 0) _exit(1);
    }
}

std::string ReadAll(int pipe) {
    std::string text;
    char buffer[4096];
    for (ssize_t count = 0; (count = read(pipe, buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(count));
    }
    return text;
}

TEST_F(KillTest, WhatWasReportedAsSavedIsThere) {
    store_.reset();
    const unsigned seed = IsLongMode() ? std::random_device()() : 1;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 dice(seed);
    std::uniform_int_distribution<useconds_t> moment(0, kMostMicroseconds);
    std::string reported;
    for (int round = 0; round < (IsLongMode() ? 300 : 20); ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        int pipes[2];
        ASSERT_EQ(pipe(pipes), 0);
        const pid_t child = fork();
        if (child == 0) AddWindows(file_, pipes[1]);
        close(pipes[1]);
        // On a busy machine the child may take its time to begin.
        pollfd begun{pipes[0], POLLIN, 0};
        if (round % 2 == 0) poll(&begun, 1, kPatienceMilliseconds);
        usleep(moment(dice));
        kill(child, SIGKILL);
        reported += ReadAll(pipes[0]);
        waitpid(child, nullptr, 0);
        close(pipes[0]);

        Connection store(file_, StoreKind::Main);
        store.CheckIntegrity();
        std::vector<int> windows;
        for (const WindowEntry& window : ListWindows(store, "1")) {
            EXPECT_EQ(LoadLabels(store, window.number).size(), 2U);
            windows.push_back(std::stoi(window.number));
        }
        // Numbers rise by one, so the last that was reported tells them all.
        std::istringstream lines(reported);
        int last = 0;
        for (int number = 0; lines >> number; last = number) ASSERT_EQ(number, last + 1);
        EXPECT_GE(windows.size(), static_cast<std::size_t>(last));
        EXPECT_LE(windows.size(), static_cast<std::size_t>(last) + 1);
        if (static_cast<int>(windows.size()) > last) reported += std::to_string(last + 1) + "\n";
    }
    EXPECT_NE(reported, "");
}

}  // namespace
}  // namespace kalvane::test
