#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

/// The recovery files of one desk, a screen on which something is made for a while before it is saved: what
/// was made and is saved nowhere. They lie in the folder of the stores as "unsaved-drawing-1.txt" and so on,
/// the greatest number the latest; beyond five the oldest is deleted.
///
/// The work on the desk has one file, which is written after each change and removed when the work is saved.
/// Work that other work takes the place of leaves its file on the shelf. So nothing need be done when the
/// desk is left or the program dies.
class RecoveryShelf {
  public:
    static constexpr std::size_t kMost = 5;

    /// Finds the files that earlier desks left. `stem` is what their names begin with: "unsaved-drawing-".
    RecoveryShelf(std::filesystem::path folder, std::string stem);

    /// True while an earlier desk's work is there that has not been taken.
    bool Offers() const;

    /// Takes down the latest of the offered works and returns its text; its file is that of the work on the
    /// desk from here on. Throws FileError when it cannot be read; it is not offered again then.
    std::string Take();

    /// Writes the file of the work on the desk, as one step. Throws FileError.
    void Keep(const std::string& text);

    /// Leaves the file of the work on the desk, if it has one, on the shelf; the desk begins a new one.
    void PutAside();

    /// Removes the file of the work on the desk.
    void Discard();

  private:
    std::vector<int> Numbers() const;
    std::filesystem::path File(int number) const;
    void Remove(int number);

    int NumberIn(std::string_view name) const;

    std::filesystem::path folder_;
    std::string stem_;
    std::vector<int> offered_;  ///< ascending
    int current_ = 1;
};

}  // namespace kalvane
