#include "ui/command_buttons.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace kalvane {

QPushButton* MakeButton(const char* name, const QString& caption, QWidget* screen, const QString& toolTip) {
    auto* button = new QPushButton(caption, screen);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    return button;
}

QHBoxLayout* ButtonRow(std::initializer_list<QPushButton*> buttons, QWidget* beside) {
    constexpr int kGap = 12;
    auto* row = new QHBoxLayout;
    if (beside == nullptr) {
        row->addStretch();
    } else {
        row->addWidget(beside, 1);
        row->addSpacing(kGap);
    }
    for (QPushButton* button : buttons) row->addWidget(button);
    return row;
}

void LayOutAboveButtons(QWidget* screen, QWidget* body, std::initializer_list<QPushButton*> buttons,
                        QWidget* beside) {
    auto* rows = new QVBoxLayout(screen);
    rows->addWidget(body, 1);
    rows->addLayout(ButtonRow(buttons, beside));
}

void LayOutEntry(QWidget* screen, QLayout* fields, QPushButton* ok, QPushButton* cancel) {
    ok->setDefault(true);
    auto* rows = new QVBoxLayout(screen);
    rows->setContentsMargins(20, 20, 20, 16);
    rows->setSpacing(18);
    rows->addLayout(fields);
    rows->addLayout(ButtonRow({ok, cancel}));
    rows->setSizeConstraint(QLayout::SetFixedSize);
}

void LayOutBesideButtons(QWidget* screen, QWidget* body,
                         std::initializer_list<std::initializer_list<QPushButton*>> groups,
                         QPushButton* exit) {
    constexpr int kGroupGap = 18;
    auto* column = new QVBoxLayout;
    for (const auto& group : groups) {
        if (column->count() > 0) column->addSpacing(kGroupGap);
        for (QPushButton* button : group) column->addWidget(button);
    }
    column->addStretch();
    column->addWidget(exit);
    auto* all = new QHBoxLayout(screen);
    all->addWidget(body, 1);
    all->addLayout(column);
}

void PressOnKeys(QWidget* widget, const QKeySequence& keys, QPushButton* button,
                 Qt::ShortcutContext context) {
    auto* shortcut = new QShortcut(keys, widget);
    shortcut->setContext(context);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
}

}  // namespace kalvane
