#include "warehouse/screens/frmMinStock.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/number_filter.h"
#include "ui/report_list.h"
#include "ui/report_output.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "warehouse/minimum_stock.h"
#include "warehouse/note_reports.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(820, 560);
constexpr int kCodeColumn = 1;
constexpr int kMinimumColumn = 5;

}  // namespace

frmMinStock::frmMinStock(QWidget* parent)
    : EntryScreen(QStringLiteral("frmMinStock"), QStringLiteral("最低库存"), parent),
      low_(new QCheckBox(QStringLiteral("只列出低于最低库存的"), this)),
      lvw_(new ReportList(
          QStringLiteral("Lvw"),
          {QStringLiteral("名称"), QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("种类"),
           QStringLiteral("库存量"), QStringLiteral("最低库存"), QStringLiteral("缺")},
          this)),
      minimum_(MakeBox(QStringLiteral("TxtZD"), this)) {
    low_->setObjectName(QStringLiteral("ChkLow"));
    NumberFilter::Set(minimum_, NumberKeys::Digits);
    lvw_->SelectSeveral();
    QPushButton* set = MakeButton("CmdSet", QStringLiteral("&S 设定"), this);
    QPushButton* print =
        MakeButton("CmdPrint", QStringLiteral("&P 打印"), this, QStringLiteral("打印低于最低库存的材料"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("&E 返 回"), this);
    LayOut({print, exit}, set);
    ShowLevels();

    OnSignal(low_, &QCheckBox::toggled, this, [this] { ShowLevels(); });
    OnSignal(lvw_, &ReportList::itemSelectionChanged, this, [this] { ShowMinimum(); });
    OnSignal(lvw_, &ReportList::DoubleClicked, this, [this] { FocusAll(minimum_); });
    OnSignal(set, &QPushButton::clicked, this, [this] { Set(); });
    OnSignal(print, &QPushButton::clicked, this,
             [this] { PrintReport(this, LowStockReport(App().Stock(), App().Own())); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    EnterMovesTo(lvw_, minimum_);
    OnEnter(minimum_, [this] {
        Set();
        lvw_->setFocus();
    });
}

void frmMinStock::LayOut(std::initializer_list<QPushButton*> buttons, QPushButton* set) {
    auto* body = new QWidget(this);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(low_);
    rows->addWidget(lvw_, 1);
    auto* entry = new QHBoxLayout;
    entry->addWidget(new QLabel(QStringLiteral("所选材料的最低库存（空或 0 为不设）:"), body));
    entry->addWidget(minimum_);
    entry->addWidget(set);
    entry->addStretch();
    rows->addLayout(entry);
    LayOutAboveButtons(this, body, buttons);
    resize(kFirstSize);
}

void frmMinStock::ShowLevels() {
    const int before = lvw_->SelectedRow();
    const QString code = before < 0 ? QString() : lvw_->Text(before, kCodeColumn);
    const bool onlyLow = low_->isChecked();
    const std::vector<StockLevel> levels =
        onlyLow ? BelowMinimum(App().Stock(), App().Own()) : StockLevels(App().Stock(), App().Own());
    lvw_->Clear();
    QList<QStringList> rows;
    for (const StockLevel& level : levels) {
        rows << QStringList{ToQt(level.name),   ToQt(level.code),    ToQt(level.unit),   ToQt(level.kind),
                            ToQt(level.onHand), ToQt(level.minimum), ToQt(level.lacking)};
    }
    lvw_->AddRows(rows);
    for (int row = 0; row < lvw_->RowCount(); ++row) {
        if (!levels[static_cast<std::size_t>(row)].lacking.empty()) {
            QTreeWidgetItem* item = lvw_->topLevelItem(row);
            for (int column = 0; column < lvw_->columnCount(); ++column) item->setForeground(column, Qt::red);
        }
        if (lvw_->Text(row, kCodeColumn) == code) lvw_->SelectRow(row);
    }
    ShowMinimum();
}

void frmMinStock::ShowMinimum() {
    const int row = lvw_->SelectedRow();
    minimum_->setText(row < 0 ? QString() : lvw_->Text(row, kMinimumColumn));
}

void frmMinStock::Set() {
    if (lvw_->SelectedOrTell(QStringLiteral("请先选择材料。")) < 0) return;
    const std::string minimum = FromQt(minimum_->text());
    for (const int row : lvw_->SelectedRows()) {
        SetMinimum(App().Own(), FromQt(lvw_->Text(row, kCodeColumn)), minimum);
    }
    ShowLevels();
}

}  // namespace kalvane
