#include "project/screens/command_buttons.h"

#include <QPushButton>
#include <QShortcut>

namespace kalvane {

QPushButton* MakeButton(const char* name, const QString& caption, QWidget* screen, const QString& toolTip) {
    auto* button = new QPushButton(caption, screen);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    return button;
}

void MarkAsComing(QPushButton* button) {
    button->setEnabled(false);
    button->setToolTip(QStringLiteral("此功能将在后续版本中提供。"));
}

void PressOnKey(QWidget* list, int key, QPushButton* button) {
    auto* shortcut = new QShortcut(QKeySequence(key), list);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
}

}  // namespace kalvane
