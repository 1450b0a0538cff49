#include "ui/main_frame.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

namespace kalvane {
namespace {
QPointer<QMdiArea>& Area() {
    static QPointer<QMdiArea> area;
    return area;
}
}  // namespace

QMdiArea* MainFrame() {
    return Area();
}
void SetMainFrame(QMdiArea* area) {
    Area() = area;
}

bool ActivateScreen(const QString& name) {
    if (QMdiArea* area = MainFrame()) {
        for (QMdiSubWindow* child : area->subWindowList()) {
            if (child->widget() == nullptr || child->widget()->objectName() != name) continue;
            if (child->isMinimized()) child->showNormal();
            area->setActiveSubWindow(child);
            return true;
        }
        return false;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->objectName() != name) continue;
        window->raise();
        window->activateWindow();
        return true;
    }
    return false;
}

}  // namespace kalvane
