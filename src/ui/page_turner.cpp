#include "ui/page_turner.h"

#include <QLineEdit>
#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 130;
}  // namespace

PageTurner::PageTurner(const Look& look, QWidget* screen)
    : QObject(screen),
      saysPageOfOne_(look.saysPageOfOne),
      previous_(MakeButton("CmdPrev", QString::fromUtf8(look.previous), screen, QStringLiteral("Page Up"))),
      next_(MakeButton("CmdNext", QString::fromUtf8(look.next), screen, QStringLiteral("Page Down"))),
      box_(MakeBox(QLatin1String(look.box), screen)) {
    box_->setReadOnly(true);
    box_->setFocusPolicy(Qt::NoFocus);
    box_->setFixedWidth(kBoxWidth);
    PressOnKeys(screen, Qt::Key_PageUp, previous_, Qt::WidgetWithChildrenShortcut);
    PressOnKeys(screen, Qt::Key_PageDown, next_, Qt::WidgetWithChildrenShortcut);
    connect(previous_, &QPushButton::clicked, this, [this] { TurnTo(page_ - 1); });
    connect(next_, &QPushButton::clicked, this, [this] { TurnTo(page_ + 1); });
}

void PageTurner::Start(int count, int page) {
    count_ = count;
    page_ = page;
    Say();
}

void PageTurner::TurnTo(int page) {
    page_ = page;
    Say();
    Q_EMIT Turned();
}

void PageTurner::Say() {
    previous_->setEnabled(page_ > 1);
    next_->setEnabled(page_ < count_);
    QString text = QStringLiteral("共%1页").arg(count_);
    if (count_ > 1 || saysPageOfOne_) text += QStringLiteral("第%1页").arg(page_);
    box_->setText(text);
}

}  // namespace kalvane
