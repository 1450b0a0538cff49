#include "warehouse/screens/FrmPostData.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>

#include "numeric/error.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/number_filter.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "warehouse/goods_notes.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(820, 480);
}  // namespace

FrmPostData::FrmPostData(Take take, QWidget* parent)
    : EntryScreen(QStringLiteral("FrmPostData"), QStringLiteral("选取出库材料"), parent),
      take_(std::move(take)),
      kinds_(new QComboBox(this)),
      stock_(new ReportList(QStringLiteral("LvwR"),
                            {QStringLiteral("名称"), QStringLiteral("规格"), QStringLiteral("单位"),
                             QStringLiteral("库存量"), QStringLiteral("种类")},
                            this)),
      name_(MakeBox(QStringLiteral("TxtMC"), this)),
      code_(MakeBox(QStringLiteral("TxtGG"), this)),
      unit_(MakeBox(QStringLiteral("TxtDW"), this)),
      count_(MakeBox(QStringLiteral("TxtSL"), this)),
      kind_(MakeBox(QStringLiteral("TxtZL"), this)),
      add_(MakeButton("OKButton", QStringLiteral("&A 添加"), this)),
      back_(MakeButton("CancelButton", QStringLiteral("&E 返回"), this)) {
    kinds_->setObjectName(QStringLiteral("CmbZL"));
    for (const std::string_view kind : MaterialKinds()) kinds_->addItem(ToQt(kind));
    kinds_->setCurrentIndex(-1);
    for (QLineEdit* box : {name_, code_, unit_, kind_}) box->setReadOnly(true);
    NumberFilter::Set(count_, NumberKeys::Digits);
    LayOut();

    OnSignal(kinds_, &QComboBox::currentIndexChanged, this, [this] { ShowStock(); });
    OnSignal(stock_, &ReportList::DoubleClicked, this, [this] { Choose(); });
    OnSignal(add_, &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(back_, &QPushButton::clicked, this, [this] { Leave(); });
    EnterMovesTo(kinds_, stock_);
    OnEnter(stock_, [this] { Choose(); });
    OnEnter(count_, [this] { Add(); });
}

void FrmPostData::LayOut() {
    auto* left = new QGroupBox(QStringLiteral("库存材料"), this);
    auto* choice = new QVBoxLayout(left);
    auto* kinds = new QFormLayout;
    kinds->addRow(QStringLiteral("种类:"), kinds_);
    choice->addLayout(kinds);
    choice->addWidget(stock_, 1);
    stock_->setToolTip(QStringLiteral("双击或按 Enter 选取"));
    auto* boxes = new QFormLayout;
    boxes->setSpacing(10);
    boxes->addRow(QStringLiteral("名称:"), name_);
    boxes->addRow(QStringLiteral("规格:"), code_);
    boxes->addRow(QStringLiteral("单位:"), unit_);
    boxes->addRow(QStringLiteral("数量:"), count_);
    boxes->addRow(QStringLiteral("种类:"), kind_);
    auto* right = new QVBoxLayout;
    right->addLayout(boxes);
    right->addStretch();
    right->addLayout(ButtonRow({add_, back_}));
    auto* all = new QHBoxLayout(this);
    all->addWidget(left, 2);
    all->addLayout(right, 1);
    resize(kFirstSize);
}

void FrmPostData::ShowStock() {
    stock_->Clear();
    QList<QStringList> rows;
    for (const StockRow& row : StockOfKind(App().Stock(), FromQt(kinds_->currentText()))) {
        rows << QStringList{ToQt(row.name), ToQt(row.code), ToQt(row.unit), ToQt(row.onHand), ToQt(row.kind)};
    }
    stock_->AddRows(rows);
}

void FrmPostData::Choose() {
    const int row = stock_->SelectedOrTell(QStringLiteral("无选中记录!"));
    if (row < 0) return;
    name_->setText(stock_->Text(row, 0));
    code_->setText(stock_->Text(row, 1));
    unit_->setText(stock_->Text(row, 2));
    onHand_ = stock_->Text(row, 3);
    kind_->setText(stock_->Text(row, 4));
    FocusAll(count_);
}

void FrmPostData::Add() {
    const NoteLine line{FromQt(name_->text()),  FromQt(code_->text()), FromQt(unit_->text()), {},
                        FromQt(count_->text()), FromQt(kind_->text())};
    if (FirstEmptyField(NoteKind::Out, line) != nullptr) {
        TellAt(this, ToQt(kIncompleteNote), stock_);
        return;
    }
    const std::string refusal = PickRefusal(line.count, FromQt(onHand_));
    if (!refusal.empty()) {
        TellAt(this, ToQt(refusal), count_);
        return;
    }
    if (const auto refused = RefusedField(NoteKind::Out, line)) throw StoreError(refused->text);
    take_(line);
    for (QLineEdit* box : {name_, code_, unit_, count_, kind_}) box->clear();
    stock_->setFocus();
}

}  // namespace kalvane
