#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kalvane {

/// The commands "wind quick", "wind full" and "wind pages" of kalvane-batch. They need no store.
class WindCommands {
  public:
    /// Adds them to `application`, which must not outlive this.
    explicit WindCommands(CLI::App& application);
    WindCommands(const WindCommands&) = delete;
    WindCommands& operator=(const WindCommands&) = delete;

  private:
    void AddSets(CLI::App& command);
    void Quick() const;
    void Full() const;
    void Pages() const;

    std::vector<std::string> sets_;  ///< NAME=VALUE, as the operator would type them one after the other
    bool values_ = false;
    float width_ = 0;
    float height_ = 0;
    float textHeight_ = 0;
};

}  // namespace kalvane
