#include "ui/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

namespace kalvane {
namespace {

bool ChangesByWheel(const QObject* object) {
    return qobject_cast<const QComboBox*>(object) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(object) != nullptr;
}

}  // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish && ChangesByWheel(watched)) {
        // Else the wheel gives the focus before it arrives here.
        auto* box = static_cast<QWidget*>(watched);
        if (box->focusPolicy() == Qt::WheelFocus) box->setFocusPolicy(Qt::StrongFocus);
    }
    if (event->type() == QEvent::Wheel && ChangesByWheel(watched) &&
        !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();  // goes on to the parent
        return true;
    }
    return false;
}

}  // namespace kalvane
