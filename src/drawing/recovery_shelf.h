#pragma once

#include <filesystem>
#include <vector>

#include "drawing/unsaved_drawing.h"

namespace kalvane {

/// The recovery files of the drawing desk: what was drawn and is saved nowhere. They lie in the folder of the
/// stores as "unsaved-drawing-1.txt" and so on, the greatest number the latest; beyond five the oldest is
/// deleted.
///
/// The drawing on the desk has one file, which is written after each change and removed when the drawing is
/// saved. A drawing that another takes the place of leaves its file on the shelf. So nothing need be done
/// when the desk is left or the program dies.
class RecoveryShelf {
  public:
    static constexpr std::size_t kMost = 5;

    /// Finds the files that earlier desks left.
    explicit RecoveryShelf(std::filesystem::path folder);

    /// True while an earlier desk's drawing is there that has not been taken.
    bool Offers() const;

    /// Takes down the latest of the offered drawings; its file is that of the drawing on the desk from here
    /// on. Throws FileError when it cannot be read; it is not offered again then.
    UnsavedDrawing Take();

    /// Writes the file of the drawing on the desk, as one step. Throws FileError.
    void Keep(const UnsavedDrawing& drawing);

    /// Leaves the file of the drawing on the desk, if it has one, on the shelf; the desk begins a new one.
    void PutAside();

    /// Removes the file of the drawing on the desk.
    void Discard();

  private:
    std::vector<int> Numbers() const;
    std::filesystem::path File(int number) const;
    void Remove(int number);

    std::filesystem::path folder_;
    std::vector<int> offered_;  ///< ascending
    int current_ = 1;
};

}  // namespace kalvane
