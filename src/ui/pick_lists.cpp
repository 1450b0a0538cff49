#include "ui/pick_lists.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_list.h"

namespace kalvane {
namespace {

QLayout* Headed(const QString& heading, QWidget* list) {
    auto* rows = new QVBoxLayout;
    rows->addWidget(new QLabel(heading));
    rows->addWidget(list, 1);
    return rows;
}

}  // namespace

PickLists::PickLists(const QStringList& columns, const Captions& captions, QWidget* screen)
    : QWidget(screen),
      offered_(new ReportList(QStringLiteral("LvwR"), columns, this)),
      chosen_(new ReportList(QStringLiteral("LvwD"), columns, this)) {
    QPushButton* move = MakeButton("CmdMove", captions.move, this);
    QPushButton* remove = MakeButton("CmdRemove", captions.remove, this);
    QPushButton* moveAll = MakeButton("CmdMoveAll", captions.moveAll, this);
    QPushButton* removeAll = MakeButton("CmdRemoveAll", captions.removeAll, this);

    auto* buttons = new QVBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {move, remove, moveAll, removeAll}) buttons->addWidget(button);
    buttons->addStretch();
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(Headed(QStringLiteral("可选："), offered_), 1);
    all->addLayout(buttons);
    all->addLayout(Headed(QStringLiteral("已选："), chosen_), 1);

    const auto moveSelected = [this] { MoveSelected(*offered_, *chosen_, QStringLiteral("无选择移动对象")); };
    const auto removeSelected = [this] {
        MoveSelected(*chosen_, *offered_, QStringLiteral("无选择移除对象"));
    };
    OnSignal(move, &QPushButton::clicked, this, moveSelected);
    OnSignal(offered_, &ReportList::itemActivated, this, moveSelected);
    OnSignal(remove, &QPushButton::clicked, this, removeSelected);
    OnSignal(chosen_, &ReportList::itemActivated, this, removeSelected);
    OnSignal(moveAll, &QPushButton::clicked, this, [this] { MoveAll(*offered_, *chosen_); });
    OnSignal(removeAll, &QPushButton::clicked, this, [this] { MoveAll(*chosen_, *offered_); });
}

void PickLists::MoveSelected(ReportList& from, ReportList& to, const QString& complaint) {
    const int row = from.SelectedRow();
    if (row < 0) {
        UseDialogs().Message(this, complaint, QStringLiteral("提示"), NoticeIcon::Information);
        return;
    }
    MoveRow(from, to, row);
}

void PickLists::MoveRow(ReportList& from, ReportList& to, int row) {
    to.AddRow(from.Row(row), from.Tag(row));
    from.RemoveRow(row);
}

void PickLists::MoveAll(ReportList& from, ReportList& to) {
    while (from.RowCount() > 0) MoveRow(from, to, 0);
}

}  // namespace kalvane
