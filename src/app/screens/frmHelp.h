#pragma once

#include "ui/screen.h"

namespace kalvane {

/// A text to read, in one scrolling box: the help of the program.
class frmHelp : public Screen {
    Q_OBJECT

  public:
    frmHelp(const QString& text, QWidget* parent);
};

}  // namespace kalvane
