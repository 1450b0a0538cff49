#include "warehouse/screens/frmStockFlow.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "warehouse/screens/note_preview.h"
#include "warehouse/stock_movements.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(820, 520);
}  // namespace

frmStockFlow::frmStockFlow(const std::string& code, QWidget* parent)
    : EntryScreen(QStringLiteral("frmStockFlow"), QStringLiteral("流水->") + ToQt(code), parent),
      lvw_(new ReportList(
          QStringLiteral("Lvw"),
          {QStringLiteral("日期"), QStringLiteral("单据"), QStringLiteral("单据编号"), QStringLiteral("用途"),
           QStringLiteral("入库"), QStringLiteral("出库"), QStringLiteral("结存")},
          this)) {
    QPushButton* note =
        MakeButton("CmdNote", QStringLiteral("&V 查看单据"), this, QStringLiteral("双击或回车键"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("&E 返 回"), this);
    lvw_->SelectSeveral();
    lvw_->OfferInMenu({note});
    LayOutAboveButtons(this, lvw_, {note, exit});
    resize(kFirstSize);
    ShowCard(code);

    OnSignal(note, &QPushButton::clicked, this, [this] { Preview(); });
    OnSignal(lvw_, &ReportList::DoubleClicked, this, [this] { Preview(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    OnEnter(lvw_, [this] { Preview(); });
}

void frmStockFlow::ShowCard(const std::string& code) {
    const StockCard card = MovementsOf(App().Stock(), code);
    if (card.opening != "0") {
        lvw_->AddRow({{}, QStringLiteral("期初"), {}, {}, {}, {}, ToQt(card.opening)});
    }
    QList<QStringList> rows;
    for (const Movement& move : card.movements) {
        const bool isIn = move.note == NoteKind::In;
        const QString count = ToQt(move.count);
        rows << QStringList{ToQt(move.date),    ToQt(LayoutOf(move.note).table), ToQt(move.number),
                            ToQt(move.purpose), isIn ? count : QString(),        isIn ? QString() : count,
                            ToQt(move.balance)};
    }
    lvw_->AddRows(rows);
}

void frmStockFlow::Preview() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("请先选择一笔出入库。"));
    if (row < 0) return;
    const std::string number = FromQt(lvw_->Text(row, 2));
    if (number.empty()) return;  // what was there before the notes has none
    const bool isIn = !lvw_->Text(row, 4).isEmpty();
    PreviewNote(isIn ? NoteKind::In : NoteKind::Out, number, this);
}

}  // namespace kalvane
