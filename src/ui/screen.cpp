#include "ui/screen.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "ui/main_frame.h"
#include "ui/screen_memory.h"

namespace kalvane {

Screen::Screen(const QString& name, const QString& title, QWidget* parent) : QDialog(parent) {
    setObjectName(name);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

QWidget* Screen::Frame() {
    QWidget* holder = parentWidget();
    return qobject_cast<QMdiSubWindow*>(holder) != nullptr ? holder : this;
}

QString Screen::GeometryKey() const {
    return objectName() + QStringLiteral(".geometry");
}

void Screen::ShowModeless() {
    setAttribute(Qt::WA_DeleteOnClose);
    QMdiArea* area = MainFrame();
    if (area == nullptr) {
        show();
        raise();
        return;
    }
    // A child window comes up at its smallest good size; a size the screen gave itself is to count.
    const QSize wanted = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    QMdiSubWindow* child = area->addSubWindow(this);
    child->setAttribute(Qt::WA_DeleteOnClose);
    child->setWindowIcon(windowIcon());
    const bool remembered = !Remembered(GeometryKey(), {}).isEmpty();
    show();
    if (!remembered) {
        child->resize((child->size() + wanted - size()).boundedTo(area->viewport()->size()));
    }
    child->raise();
}

void Screen::done(int result) {
    QWidget* frame = Frame();
    QDialog::done(result);
    if (frame != this) frame->close();
}

void Screen::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (restored_) return;
    restored_ = true;
    const QString saved = Remembered(GeometryKey(), {});
    if (!saved.isEmpty()) Frame()->restoreGeometry(QByteArray::fromBase64(saved.toLatin1()));
}

void Screen::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    if (restored_) {
        Remember(GeometryKey(), QString::fromLatin1(Frame()->saveGeometry().toBase64()));
    }
}

}  // namespace kalvane
