#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace kalvane::test {

/// A folder of its own for one test, removed with everything in it at the end.
class TempFolder {
  public:
    TempFolder() {
        // In memory where that can be had: the tests make hundreds of small files and wait for no disk.
        for (const std::filesystem::path& parent :
             {std::filesystem::path("/dev/shm"), std::filesystem::temp_directory_path()}) {
            std::string pattern = (parent / "kalvane-XXXXXX").string();
            if (mkdtemp(pattern.data()) == nullptr) continue;
            path_ = pattern;
            return;
        }
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

}  // namespace kalvane::test
