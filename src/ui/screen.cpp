#include "ui/screen.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "ui/dialogs.h"
#include "ui/main_frame.h"
#include "ui/screen_memory.h"

namespace kalvane {
namespace {

/// Each further child screen comes up this many pixels right of and below the one before, and after that
/// many at the corner again.
constexpr int kCascadeStep = 32;
constexpr int kCascadeLength = 6;

/// Shrinks and moves a child window until all of it can be seen.
void KeepInside(QWidget& child, QSize area) {
    child.resize(child.size().boundedTo(area));
    const QSize room = area - child.size();
    child.move(qBound(0, child.x(), room.width()), qBound(0, child.y(), room.height()));
}

}  // namespace

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
        child->resize(child->size() + wanted - size());
        const auto others = static_cast<int>(area->subWindowList().size()) - 1;
        child->move(QPoint(kCascadeStep, kCascadeStep) * (others % kCascadeLength));
    }
    KeepInside(*child, area->viewport()->size());
    child->raise();
}

void Screen::done(int result) {
    QWidget* frame = Frame();
    QDialog::done(result);
    if (frame != this) frame->close();
}

void Screen::reject() {
    if (HasTypedWork() && !AskToLose(this, QStringLiteral("输入的内容还没有保存，要放弃吗？"))) return;
    Leave();
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
