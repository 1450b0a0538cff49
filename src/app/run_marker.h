#pragma once

#include <filesystem>

namespace kalvane {

/// Shows at a start whether the last run on the folder ended cleanly: the program keeps a file there while it
/// runs, and a killed program leaves it behind.
class RunMarker {
  public:
    explicit RunMarker(const std::filesystem::path& folder);
    RunMarker(const RunMarker&) = delete;
    RunMarker& operator=(const RunMarker&) = delete;
    /// Ends the run: removes the file when it is this run's.
    ~RunMarker();

    /// True while a run has not ended cleanly; this one too, once begun.
    bool Exists() const;

    /// Begins the run. Call once the folder is known to be used by no other program. A file that cannot be
    /// written is no failure: the next start then makes no extra checks.
    void Set();

    /// Has the next start take this run for one that did not end cleanly.
    void Keep() { isSet_ = false; }

  private:
    std::filesystem::path file_;
    bool isSet_ = false;
};

}  // namespace kalvane
