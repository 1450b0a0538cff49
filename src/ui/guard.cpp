#include "ui/guard.h"

#include <QPointer>
#include <QWidget>
#include <exception>

#include "ui/dialogs.h"
#include "ui/text.h"

namespace kalvane {

bool Guarded(QWidget* parent, const std::function<void()>& handler, const QString& title) {
    const QPointer<QWidget> screen(parent);
    try {
        handler();
        return true;
    } catch (const std::exception& failure) {
        UseDialogs().Message(screen, ToQt(failure.what()), title, NoticeIcon::Error);
        return false;
    }
}

}  // namespace kalvane
