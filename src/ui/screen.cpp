#include "ui/screen.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/app_state.h"
#include "platform/error.h"
#include "platform/settings_store.h"
#include "ui/main_frame.h"
#include "ui/text.h"

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

void Screen::ShowModeless() {
    setAttribute(Qt::WA_DeleteOnClose);
    if (QMdiArea* area = MainFrame()) {
        QMdiSubWindow* child = area->addSubWindow(this);
        child->setAttribute(Qt::WA_DeleteOnClose);
    }
    show();
    raise();
}

void Screen::done(int result) {
    QDialog::done(result);
    if (Frame() != this) Frame()->close();
}

void Screen::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (restored_ || App().settings == nullptr) return;
    restored_ = true;
    const std::string saved =
        App().settings->Read("Kalvane", kSectionScreens, FromQt(objectName()) + ".geometry", "");
    if (!saved.empty()) Frame()->restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(saved)));
}

void Screen::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    if (!restored_ || App().settings == nullptr) return;
    try {
        App().settings->Save("Kalvane", kSectionScreens, FromQt(objectName()) + ".geometry",
                             Frame()->saveGeometry().toBase64().toStdString());
    } catch (const FileError&) {
        // A window that opens at its default place next time is no reason to trouble the operator.
    }
}

}  // namespace kalvane
