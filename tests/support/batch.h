#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/files.h"
#include "support/paths.h"
#include "support/temp_folder.h"

namespace kalvane::test {

struct BatchResult {
    int exitCode = -1;
    std::string output;
    std::string errors;
};

/// Runs kalvane-batch with `arguments` as a shell reads them, behind the shell's `preparation`.
inline BatchResult RunBatch(const std::string& arguments, const std::string& preparation = "true") {
    const TempFolder folder;
    const std::filesystem::path errors = folder / "errors";
    const std::string command = preparation + " && XDG_CONFIG_HOME='" + folder.Path().string() + "' '" +
                                BatchProgram().string() + "' " + arguments + " 2>'" + errors.string() + "'";
    BatchResult result;
    FILE* pipe = popen(command.c_str(), "r");
    EXPECT_NE(pipe, nullptr);
    std::array<char, 4096> buffer;
    for (std::size_t count = 0; (count = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
        result.output.append(buffer.data(), count);
    }
    const int status = pclose(pipe);
    if (WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
    result.errors = ReadFile(errors);
    return result;
}

}  // namespace kalvane::test
