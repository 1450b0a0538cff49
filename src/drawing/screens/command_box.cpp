#include "drawing/screens/command_box.h"

#include <QKeyEvent>

namespace kalvane {
namespace {

/// Full-width forms of the ASCII characters as these.
QString PlainWidth(QString text) {
    constexpr char16_t kFirst = 0xFF01;  // full-width "!"
    constexpr char16_t kLast = 0xFF5E;   // full-width "~"
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code >= kFirst && code <= kLast) character = QChar(static_cast<char16_t>(code - kFirst + u'!'));
    }
    return text;
}

}  // namespace

void CommandBox::StartWith(const QString& text) {
    setFocus();
    setText(text);
    end(false);
}

bool CommandBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers().testFlag(Qt::ControlModifier) &&
            (key->key() == Qt::Key_Z || key->key() == Qt::Key_Y)) {
            event->ignore();
            return false;
        }
    }
    return QLineEdit::event(event);
}

void CommandBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: {
            const QString typed = PlainWidth(text());
            clear();
            Q_EMIT Entered(typed);
            return;
        }
        case Qt::Key_Escape:
            clear();
            Q_EMIT Escaped();
            return;
        default:
            QLineEdit::keyPressEvent(event);
    }
}

}  // namespace kalvane
