// The folders of src/ stand on floors: one includes only from floors below its own.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

#include "support/paths.h"
#include "support/temp_folder.h"

namespace kalvane::test {
namespace {

using Path = std::filesystem::path;

/// A folder that is new gets its floor here.
const std::map<std::string, int> kFloors = {
    {"numeric", 0},   {"platform", 1}, {"store", 2},     {"page", 2},   {"session", 3}, {"ui", 3},
    {"formula", 4},   {"drawing", 4},  {"catalogue", 4}, {"backup", 5}, {"design", 5},  {"wind", 5},
    {"warehouse", 5}, {"project", 6},  {"optimise", 7},  {"output", 8}, {"app", 9},     {"batch", 10},
};

/// Complaints about the files of `sources`, each "file includes file".
std::vector<std::string> IncludesUpwards(const Path& sources) {
    std::vector<std::string> complaints;
    const std::regex include("#include \"(([^/\"]+)/[^\"]+)\"");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        const Path file = entry.path().lexically_relative(sources);
        if (!entry.is_regular_file() || !file.has_parent_path()) continue;  // main.cpp may include anything
        const std::string folder = file.begin()->string();
        if (!kFloors.contains(folder)) {
            complaints.push_back(folder + " has no floor");
            continue;
        }
        std::ifstream stream(entry.path());
        for (std::string line; std::getline(stream, line);) {
            std::smatch found;
            if (!std::regex_search(line, found, include) || found[2] == folder) continue;
            const auto below = kFloors.find(found[2]);
            if (below != kFloors.end() && below->second < kFloors.at(folder)) continue;
            complaints.push_back(file.string() + " includes " + found[1].str());
        }
    }
    return complaints;
}

TEST(Floors, FoldersIncludeOnlyFromBelow) {
    EXPECT_EQ(IncludesUpwards(SourceFolder() / "src"), std::vector<std::string>());
}

TEST(Floors, AWrongIncludeIsNamed) {
    const TempFolder folder;
    std::filesystem::create_directories(folder / "page");
    std::filesystem::create_directories(folder / "attic");
    std::ofstream(folder / "page" / "a.h") << "#include <string>\n#include \"page/b.h\"\n"
                                           << "#include \"numeric/c.h\"\n#include \"store/d.h\"\n";
    std::ofstream(folder / "attic" / "e.h") << "#include \"numeric/c.h\"\n";
    std::vector<std::string> complaints = IncludesUpwards(folder.Path());
    std::sort(complaints.begin(), complaints.end());
    EXPECT_EQ(complaints, std::vector<std::string>({"attic has no floor", "page/a.h includes store/d.h"}));
}

}  // namespace
}  // namespace kalvane::test
