#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace kalvane {

/// A button with its name.
QPushButton* MakeButton(const char* name, const QString& caption, QWidget* screen,
                        const QString& toolTip = {});

/// Disables a button whose screen is still to come.
void MarkAsComing(QPushButton* button);

/// Presses `button` when that key is hit while `list` has the focus.
void PressOnKey(QWidget* list, int key, QPushButton* button);

}  // namespace kalvane
