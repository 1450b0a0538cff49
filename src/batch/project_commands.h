#pragma once

#include <string>

namespace CLI {
class App;
}

namespace kalvane {

/// The commands "windows" and "contract" of kalvane-batch, on a project of a folder.
class ProjectCommands {
  public:
    /// Adds them to `application`, which must not outlive this.
    explicit ProjectCommands(CLI::App& application);
    ProjectCommands(const ProjectCommands&) = delete;
    ProjectCommands& operator=(const ProjectCommands&) = delete;

  private:
    CLI::App* Add(CLI::App& application, const char* name, const char* description);
    /// Prints the nine columns of the window list, a window a line.
    void Windows() const;
    /// Writes the contract as the screen prints it.
    void Contract() const;

    std::string folder_ = ".";
    std::string project_;
    std::string pdf_;
};

}  // namespace kalvane
