#include "ui/guard.h"

#include <exception>

#include "ui/dialogs.h"
#include "ui/text.h"

namespace kalvane {

bool Guarded(QWidget* parent, const std::function<void()>& handler, const QString& title) {
    try {
        handler();
        return true;
    } catch (const std::exception& failure) {
        UseDialogs().Message(parent, QString::fromUtf8(failure.what()), title, NoticeIcon::Error);
        return false;
    }
}

}  // namespace kalvane
