#pragma once

#include <filesystem>

namespace kalvane::test {

// Where things lie in this build. Only paths.cpp knows: all other files compile alike in every clone, and
// come from a compiler cache.

/// The project's own folder.
std::filesystem::path SourceFolder();

/// The program without a screen.
std::filesystem::path BatchProgram();

}  // namespace kalvane::test
