#include "ui/main_frame.h"

#include <QMdiArea>
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

}  // namespace kalvane
