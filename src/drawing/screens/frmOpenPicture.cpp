#include "drawing/screens/frmOpenPicture.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "drawing/drawing_library.h"
#include "drawing/screens/drawing_box.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(900, 520);
constexpr int kListWidth = 340;
constexpr int kNameColumn = 0;
constexpr int kNumberColumn = 1;
}  // namespace

frmOpenPicture::frmOpenPicture(QWidget* parent)
    : Screen(QStringLiteral("frmOpenPicture"), QStringLiteral("打开门窗图"), parent),
      lvw_(new ReportList(QStringLiteral("lvw"), {QStringLiteral("图名"), QStringLiteral("编号")}, this)),
      del_(MakeButton("CmdDel", QStringLiteral("删除"), this, QStringLiteral("Delete"))),
      txtCBN_(MakeBox(QStringLiteral("txtCBN"), this)),
      picture_(new DrawingBox(QStringLiteral("PicMC"), this)) {
    txtCBN_->setReadOnly(true);
    lvw_->setMinimumWidth(kListWidth);
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this, QStringLiteral("Enter 或双击"));
    ok->setDefault(true);
    del_->setAutoDefault(false);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this, QStringLiteral("Esc"));
    cancel->setAutoDefault(false);

    auto* number = new QFormLayout;
    number->addRow(QStringLiteral("图形编号："), txtCBN_);
    auto* shown = new QVBoxLayout;
    shown->addWidget(picture_, 1);
    shown->addLayout(number);
    auto* body = new QHBoxLayout;
    body->addWidget(lvw_);
    body->addLayout(shown, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(body, 1);
    rows->addLayout(ButtonRow({ok, del_, cancel}));
    resize(kFirstSize);

    PressOnKeys(lvw_, Qt::Key_Delete, del_);
    OnSignal(lvw_, &ReportList::itemSelectionChanged, this, [this] { ShowSelected(); });
    OnSignal(lvw_, &ReportList::itemDoubleClicked, this, [this] { Confirm(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(del_, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { Load(); });
}

void frmOpenPicture::ForbidDelete() {
    del_->setEnabled(false);
}

void frmOpenPicture::Load() {
    QList<QStringList> rows;
    for (const DrawingEntry& drawing : ListDrawings(App().Main())) {
        rows << QStringList{ToQt(drawing.name), ToQt(drawing.number)};
    }
    lvw_->AddRows(rows);
}

void frmOpenPicture::ShowSelected() {
    const int row = lvw_->SelectedRow();
    txtCBN_->setText(row < 0 ? QString() : lvw_->Text(row, kNumberColumn));
    picture_->Clear();
    if (row < 0) return;
    picture_->ShowFromLibrary(App().Main(), FromQt(txtCBN_->text()), DrawingBox::Names::Shown);
}

void frmOpenPicture::Confirm() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取图形！"));
    if (row < 0) return;
    FieldSlots& slots = SharedFieldSlots();
    slots[0] = FromQt(lvw_->Text(row, kNumberColumn));
    slots[1] = FromQt(lvw_->Text(row, kNameColumn));
    accept();
}

void frmOpenPicture::Delete() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取图形！"));
    if (row < 0) return;
    if (!AskToLose(this, QStringLiteral("确定要删除吗？(%1)").arg(lvw_->Text(row, kNameColumn)))) return;
    DeleteDrawing(App().Main(), FromQt(lvw_->Text(row, kNumberColumn)));
    lvw_->RemoveRow(row);
}

}  // namespace kalvane
