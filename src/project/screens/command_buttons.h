#pragma once

#include <QString>
#include <initializer_list>

class QPushButton;
class QWidget;

namespace kalvane {

/// A button with its name.
QPushButton* MakeButton(const char* name, const QString& caption, QWidget* screen,
                        const QString& toolTip = {});

/// Disables a button whose screen is still to come.
void MarkAsComing(QPushButton* button);

/// Lays out a screen as a body with a row of buttons below, at the right. `beside`, which may be null, takes
/// the room left of them.
void LayOutAboveButtons(QWidget* screen, QWidget* body, std::initializer_list<QPushButton*> buttons,
                        QWidget* beside = nullptr);

/// Presses `button` when that key is hit while `list` has the focus.
void PressOnKey(QWidget* list, int key, QPushButton* button);

}  // namespace kalvane
