#pragma once

#include <string>

namespace kalvane {

/// The status bar of the drawing desk.
class StatusBar {
  public:
    virtual ~StatusBar() = default;

    /// Panel 1: what the tool wants next. An empty text clears it.
    virtual void ShowPrompt(const std::string& text) = 0;
    /// Panel 2: where the mouse is.
    virtual void ShowCoordinates(const std::string& text) = 0;
};

}  // namespace kalvane
