#include "drawing/screens/desk_buttons.h"

#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/command_buttons.h"

namespace kalvane {
namespace {
constexpr int kGap = 8;
constexpr int kIcon = 20;
}  // namespace

DeskButtons::DeskButtons(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(2);
    setStyleSheet(QStringLiteral("QPushButton { text-align: left; padding: 2px 8px; }"));
}

QPushButton* DeskButtons::AddButton(const char* name, const QString& caption, const QString& icon,
                                    const QString& toolTip) {
    QPushButton* button = MakeButton(name, caption, this, toolTip);
    button->setIcon(QIcon(QStringLiteral(":/ui/%1.svg").arg(icon)));
    button->setIconSize({kIcon, kIcon});
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    column_->addWidget(button);
    return button;
}

void DeskButtons::AddGap() {
    column_->addSpacing(kGap);
}

void DeskButtons::AddStretch() {
    column_->addStretch();
}

void DeskButtons::AddCommand(DeskCommand command, const char* name, const QString& caption,
                             const QString& icon, const QString& toolTip) {
    QPushButton* button = AddButton(name, caption, icon, toolTip);
    connect(button, &QPushButton::clicked, this, [this, command] { Q_EMIT Chosen(command); });
    if (const std::string_view tool = ToolOfCommand(command); !tool.empty()) {
        button->setCheckable(true);
        tools_.emplace_back(tool, button);
    }
}

void DeskButtons::ShowArmed(std::string_view tool) {
    for (const auto& [name, button] : tools_) button->setChecked(name == tool);
}

}  // namespace kalvane
