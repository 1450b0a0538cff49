#pragma once

#include "ui/screen.h"

namespace kalvane {

/// A text to read in one scrolling box `Text1`, with the command to print it. Serves every screen that is a
/// text and no more: the caller gives the screen's name and title.
class TextScreen : public Screen {
    Q_OBJECT

  public:
    TextScreen(const QString& name, const QString& title, const QString& text, QWidget* parent);

  private:
    void Print(const QString& text);
};

}  // namespace kalvane
