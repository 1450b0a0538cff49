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

PickLists::PickLists(const PickSetup& setup, QWidget* screen)
    : QWidget(screen),
      copies_(setup.copies),
      offered_(new ReportList(setup.offeredName, setup.columns, this)),
      chosen_(new ReportList(setup.chosenName, setup.columns, this)) {
    chosen_->KeepOrder();
    auto* buttons = new QVBoxLayout;
    buttons->addStretch();
    const auto add = [&](const PickCommand& command, bool chooses, bool all) {
        QPushButton* button = MakeButton(command.name, command.caption, this);
        buttons->addWidget(button);
        ReportList* from = chooses ? offered_ : chosen_;
        const auto take = [this, from, chooses, all, complaint = command.complaint] {
            Take(chooses, all ? from->AllRows() : from->SelectedRows(), complaint);
        };
        OnSignal(button, &QPushButton::clicked, this, take);
        if (!all) OnSignal(from, &ReportList::itemActivated, this, take);
    };
    add(setup.choose, true, false);
    add(setup.remove, false, false);
    add(setup.chooseAll, true, true);
    add(setup.removeAll, false, true);
    buttons->addStretch();
    for (ReportList* list : {offered_, chosen_}) list->SelectSeveral();

    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(Headed(setup.offeredHeading, offered_), 1);
    all->addLayout(buttons);
    all->addLayout(Headed(setup.chosenHeading, chosen_), 1);
}

void PickLists::Take(bool chooses, const std::vector<int>& rows, const QString& complaint) {
    if (rows.empty()) {
        if (!complaint.isEmpty()) Tell(window(), complaint);
    } else if (!copies_) {
        (chooses ? offered_ : chosen_)->MoveRows(rows, chooses ? *chosen_ : *offered_);
    } else if (chooses) {
        QList<QStringList> texts;
        for (const int row : rows) texts << offered_->Row(row);
        chosen_->AddRows(texts);
    } else if (rows.size() == chosen_->AllRows().size()) {
        chosen_->Clear();
    } else {
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) chosen_->RemoveRow(*row);
    }
}

}  // namespace kalvane
