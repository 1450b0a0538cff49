#include "project/screens/frmInputGC.h"

#include <QFormLayout>
#include <QPushButton>

#include "session/shared_slots.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr int kBoxWidth = 320;
}  // namespace

frmInputGC::frmInputGC(const QString& title, QWidget* parent)
    : EntryScreen(QStringLiteral("frmInputGC"), title, parent) {
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    auto* fields = new QFormLayout;
    fields->setSpacing(10);
    const QString captions[] = {QStringLiteral("工程名称："), QStringLiteral("工程地点："),
                                QStringLiteral("甲方单位："), QStringLiteral("合同编号：")};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = MakeBox(QStringLiteral("Text1(%1)").arg(i), this, kBoxWidth);
        fields->addRow(captions[i], boxes_[i]);
    }
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定 &Y"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消 &C"), this);
    LayOutEntry(this, fields, ok, cancel);

    for (std::size_t i = 0; i + 1 < boxes_.size(); ++i) EnterMovesTo(boxes_[i], boxes_[i + 1]);
    OnEnter(boxes_.back(), [this] { Confirm(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { reject(); });
}

void frmInputGC::Fill(const Project& project) {
    const std::string* texts[] = {&project.name, &project.place, &project.client, &project.contractNumber};
    for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->setText(ToQt(*texts[i]));
    FocusAll(boxes_.front());
}

void frmInputGC::Confirm() {
    if (!AllFilled(boxes_)) return;
    FieldSlots& slots = SharedFieldSlots();
    slots[1] = FromQt(boxes_[3]->text());
    slots[2] = FromQt(boxes_[0]->text());
    slots[3] = FromQt(boxes_[1]->text());
    slots[4] = FromQt(boxes_[2]->text());
    accept();
}

}  // namespace kalvane
