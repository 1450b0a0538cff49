#include "drawing/screens/frmInput.h"

#include <QFormLayout>
#include <QPushButton>

#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 260;
constexpr int kLongest = 50;  // what the library holds
}  // namespace

frmInput::frmInput(QWidget* parent)
    : Screen(QStringLiteral("frmInput"), QStringLiteral("输入文字"), parent),
      text1_(MakeBox(QStringLiteral("Text1"), this, kBoxWidth)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    text1_->setMaxLength(kLongest);
    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("输入文字："), text1_);
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);
    LayOutEntry(this, fields, ok, cancel);

    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
}

void frmInput::Confirm() {
    text_ = text1_->text();
    accept();
}

}  // namespace kalvane
