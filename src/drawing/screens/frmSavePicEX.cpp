#include "drawing/screens/frmSavePicEX.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "drawing/drawing_library.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/number_filter.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 280;
constexpr int kLongestName = 50;
constexpr int kSelected = 10;
}  // namespace

frmSavePicEX::frmSavePicEX(QWidget* parent)
    : EntryScreen(QStringLiteral("frmSavePicEX"), QStringLiteral("保存文件名"), parent),
      name_(MakeBox(QStringLiteral("Text1"), this, kBoxWidth)),
      number_(MakeBox(QStringLiteral("Text2"), this)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    name_->setMaxLength(kLongestName);
    // The engine would round "12.1" to a number that another drawing may have.
    NumberFilter::Set(number_, NumberKeys::Digits);
    auto* label1 = new QLabel(QStringLiteral("文件名："), this);
    label1->setObjectName(QStringLiteral("Label1"));
    auto* label2 = new QLabel(QStringLiteral("图形编号："), this);
    label2->setObjectName(QStringLiteral("Label2"));
    auto* fields = new QFormLayout;
    fields->setSpacing(10);
    fields->addRow(label1, name_);
    fields->addRow(label2, number_);

    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);
    LayOutEntry(this, fields, ok, cancel);

    OnEnter(name_, [this] { Confirm(); });
    OnEnter(number_, [this] { Confirm(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { number_->setText(ToQt(NextDrawingNumber(App().Main()))); });
}

void frmSavePicEX::Confirm() {
    const QString number = number_->text().trimmed();
    number_->setText(number);
    if (DrawingExists(App().Main(), FromQt(number))) {
        Tell(this, QStringLiteral("该编号已存在，请重新输入新的编号。"));
        number_->setFocus();
        number_->setSelection(0, kSelected);
        return;
    }
    const QString name = name_->text().trimmed();
    if (name.isEmpty()) {
        Tell(this, QStringLiteral("图形名称不能为空！"));
        name_->setFocus();
        return;
    }
    FieldSlots& slots = SharedFieldSlots();
    slots[0] = FromQt(number);
    slots[1] = FromQt(name);
    accept();
}

}  // namespace kalvane
