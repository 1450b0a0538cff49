#pragma once

#include <string>

namespace kalvane {

/// What the drawing desk asks of its screen: the commands that show other screens, and its title.
class DeskScreen {
  public:
    virtual ~DeskScreen() = default;

    virtual void SetTitle(const std::string& title) = 0;
    virtual void ChooseDrawing() = 0;
    virtual void SaveDrawing() = 0;
    virtual void PrintDrawing() = 0;
    virtual void Quit() = 0;
};

}  // namespace kalvane
