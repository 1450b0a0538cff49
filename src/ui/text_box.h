#pragma once

#include <QLineEdit>

namespace kalvane {

/// A text box with its name, at least `minimumWidth` pixels wide.
QLineEdit* MakeBox(const QString& name, QWidget* screen, int minimumWidth = 0);

}  // namespace kalvane
