#pragma once

#include <QHash>
#include <functional>
#include <span>

#include "ui/screen.h"

class QLineEdit;

namespace kalvane {

/// Base of the screens that are typed through: Enter does what was laid down for the control that has the
/// focus, presses a button that has it, and is lost on any other control, so that it never confirms a
/// half-filled screen.
class EntryScreen : public Screen {
    Q_OBJECT

  public:
    using Screen::Screen;

  protected:
    void OnEnter(QWidget* control, std::function<void()> action) { enter_[control] = std::move(action); }
    /// Enter moves on to `next`; the text of a box there is selected.
    void EnterMovesTo(QWidget* control, QWidget* next);
    /// Enter moves from each box to the next.
    void EnterWalks(std::span<QLineEdit* const> boxes);

    static void FocusAll(QLineEdit* box);

    /// True when every box holds a text; else tells the operator and leads to the first empty one.
    bool AllFilled(std::span<QLineEdit* const> boxes);

    void keyPressEvent(QKeyEvent* event) override;

  private:
    QHash<QWidget*, std::function<void()>> enter_;
};

}  // namespace kalvane
