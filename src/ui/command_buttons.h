#pragma once

#include <QKeySequence>
#include <QString>
#include <initializer_list>

class QHBoxLayout;
class QLayout;
class QPushButton;
class QWidget;

namespace kalvane {

/// A button with its name.
QPushButton* MakeButton(const char* name, const QString& caption, QWidget* screen,
                        const QString& toolTip = {});

/// A row of buttons at the right; `beside`, which may be null, takes the room left of them.
QHBoxLayout* ButtonRow(std::initializer_list<QPushButton*> buttons, QWidget* beside = nullptr);

/// Lays out a screen as a body with a ButtonRow below.
void LayOutAboveButtons(QWidget* screen, QWidget* body, std::initializer_list<QPushButton*> buttons,
                        QWidget* beside = nullptr);

/// Lays out a small screen of one size: fields, and the two buttons that end it, of which Enter presses `ok`.
void LayOutEntry(QWidget* screen, QLayout* fields, QPushButton* ok, QPushButton* cancel);

/// Lays out a screen as a body with a column of buttons at its right: one group below the other, and `exit`
/// at the bottom.
void LayOutBesideButtons(QWidget* screen, QWidget* body,
                         std::initializer_list<std::initializer_list<QPushButton*>> groups,
                         QPushButton* exit);

/// Presses `button` when those keys are hit while `widget` has the focus, or with the other context one of
/// its children.
void PressOnKeys(QWidget* widget, const QKeySequence& keys, QPushButton* button,
                 Qt::ShortcutContext context = Qt::WidgetShortcut);

}  // namespace kalvane
