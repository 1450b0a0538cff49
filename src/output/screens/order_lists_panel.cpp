#include "output/screens/order_lists_panel.h"

#include <QGridLayout>
#include <QPushButton>

#include "output/order_lists.h"
#include "output/screens/FrmEasyGJBReport.h"
#include "output/screens/frmTJMX.h"
#include "output/screens/tally_files.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/report_output.h"

namespace kalvane {

OrderListsPanel::OrderListsPanel(OrderChoice choice, QWidget* screen)
    : QGroupBox(QStringLiteral("核对与备料"), screen), choice_(std::move(choice)), screen_(screen) {
    QPushButton* rows = MakeButton("CmdMX", QStringLiteral("逐行核对"), this,
                                   QStringLiteral("每一行由哪些门窗、哪些公式得来"));
    QPushButton* buying =
        MakeButton("CmdCGD", QStringLiteral("采购单"), this, QStringLiteral("要买的支数、平方米和件数"));
    QPushButton* saveBuying = MakeButton("CmdOutCGD", QStringLiteral("输出>"), this);
    QPushButton* glass =
        MakeButton("CmdBLD", QStringLiteral("玻璃单"), this, QStringLiteral("各种尺寸的块数和所用的门窗"));
    QPushButton* saveGlass = MakeButton("CmdOutBLD", QStringLiteral("输出>"), this);
    QPushButton* shortTable = MakeButton("CmdGJB", QStringLiteral("构件简表"), this);
    auto* grid = new QGridLayout(this);
    grid->addWidget(rows, 0, 0, 1, 2);
    grid->addWidget(buying, 1, 0);
    grid->addWidget(saveBuying, 1, 1);
    grid->addWidget(glass, 2, 0);
    grid->addWidget(saveGlass, 2, 1);
    grid->addWidget(shortTable, 3, 0, 1, 2);
    grid->setRowStretch(4, 1);

    const MakeList makeBuying = [](const GatheringRecord&) { return BuyingList(App().Main()); };
    const MakeList makeGlass = [](const GatheringRecord& record) {
        return GlassList(App().Main(), record.windows);
    };
    OnSignal(rows, &QPushButton::clicked, screen, [this] {
        if (const auto record = GatheringOrTell()) frmTJMX(*record, choice_.showDesigner, screen_).exec();
    });
    OnSignal(buying, &QPushButton::clicked, screen, [=, this] { Preview(makeBuying); });
    OnSignal(saveBuying, &QPushButton::clicked, screen, [=, this] { Save(makeBuying); });
    OnSignal(glass, &QPushButton::clicked, screen, [=, this] { Preview(makeGlass); });
    OnSignal(shortTable, &QPushButton::clicked, screen,
             [this] { ShowShortTable(choice_.windows(), choice_.project.name, screen_); });
    OnSignal(saveGlass, &QPushButton::clicked, screen, [=, this] { Save(makeGlass); });
}

std::optional<GatheringRecord> OrderListsPanel::GatheringOrTell() {
    std::optional<GatheringRecord> record = LoadGatheringRecord(App().Main());
    if (!record) Tell(screen_, QStringLiteral("还没有归总。请先选入门窗，再按“统计”中的“归总”。"));
    return record;
}

void OrderListsPanel::Preview(const MakeList& make) {
    const auto record = GatheringOrTell();
    if (record) PrintReport(screen_, ListReport(make(*record), record->project, record->Text()));
}

void OrderListsPanel::Save(const MakeList& make) {
    const auto record = GatheringOrTell();
    if (!record) return;
    FileTable list = make(*record);
    list.below.push_back({record->Text()});
    SaveTables(screen_, {list});
}

}  // namespace kalvane
