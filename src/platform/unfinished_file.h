#pragma once

#include <filesystem>

namespace kalvane {

/// A file that is written under a temporary name and gets its own only when it is complete: a failure or a
/// kill never leaves half a file under the name, nor removes an older one. A file that was
/// not finished is removed, with the journal that the store's engine may have left beside it.
class UnfinishedFile {
  public:
    /// What an earlier process of the same number left under the temporary name is removed.
    explicit UnfinishedFile(std::filesystem::path name);
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile();

    /// Where to write it.
    const std::filesystem::path& Path() const { return path_; }

    /// Flushes the file to the disk and gives it its name as one step, in place of a file that had it.
    /// Throws FileError; the other file then stays as it was.
    void Finish();

    /// Gives the file its name unless that is taken by now: the file that has it then stays. Throws
    /// FileError.
    void FinishUnlessTaken();

  private:
    void Remove() const;

    std::filesystem::path name_;
    std::filesystem::path path_;
};

/// True for the temporary name of such a file, or of its journal: what a killed program leaves.
bool IsUnfinishedName(const std::filesystem::path& file);

}  // namespace kalvane
