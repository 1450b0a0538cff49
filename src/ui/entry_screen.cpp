#include "ui/entry_screen.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "ui/dialogs.h"
#include "ui/guard.h"

namespace kalvane {

void EntryScreen::EnterMovesTo(QWidget* control, QWidget* next) {
    OnEnter(control, [next] {
        if (auto* box = qobject_cast<QLineEdit*>(next)) {
            FocusAll(box);
        } else {
            next->setFocus();
        }
    });
}

void EntryScreen::EnterWalks(std::span<QLineEdit* const> boxes) {
    for (std::size_t i = 0; i + 1 < boxes.size(); ++i) EnterMovesTo(boxes[i], boxes[i + 1]);
}

void EntryScreen::FocusAll(QLineEdit* box) {
    box->setFocus();
    box->selectAll();
}

bool EntryScreen::AllFilled(std::span<QLineEdit* const> boxes) {
    for (QLineEdit* box : boxes) {
        if (!box->text().isEmpty()) continue;
        TellAt(this, QStringLiteral("数据不能为空！"), box);
        return false;
    }
    return true;
}

void EntryScreen::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        Screen::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat()) return;  // a key held down must not run through the screen
    // A copy: the action may end the screen.
    if (const auto action = enter_.value(focusWidget())) Guarded(this, action);
}

}  // namespace kalvane
