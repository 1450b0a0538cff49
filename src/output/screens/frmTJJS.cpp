#include "output/screens/frmTJJS.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "output/screens/order_lists_panel.h"
#include "output/screens/settlement_panel.h"
#include "output/screens/tally_panel.h"
#include "project/screens/window_rows.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/pick_lists.h"
#include "ui/report_list.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1120, 680);

std::vector<WindowEntry> WindowsIn(const ReportList& list) {
    std::vector<WindowEntry> windows;
    for (const int row : list.AllRows()) windows.push_back(ToWindow(list.Row(row)));
    return windows;
}

}  // namespace

frmTJJS::frmTJJS(const Project& project, ShowDesigner showDesigner, QWidget* parent)
    : Screen(QStringLiteral("frmTJJS"), QStringLiteral("统计决算"), parent),
      lists_(new PickLists(
          {.offeredName = QStringLiteral("LvwR"),
           .chosenName = QStringLiteral("LvwD"),
           .offeredHeading = QStringLiteral("可选用门窗"),
           .chosenHeading = QStringLiteral("已选用门窗"),
           .columns = WindowColumns(),
           .choose = {"CmdSelect", QStringLiteral("选入->"), QStringLiteral("无可选入对象！")},
           .remove = {"CmdRemove", QStringLiteral("<-移除"), QStringLiteral("无可移除对象！")},
           .chooseAll = {"CmdSelectAll", QStringLiteral("全选>>"), QStringLiteral("无可选入对象！")},
           .removeAll = {"CmdRemoveAll", QStringLiteral("<<全移除"), QStringLiteral("无可选入对象！")}},
          this)) {
    const OrderChoice choice{project, [this] { return WindowsIn(lists_->Chosen()); },
                             std::move(showDesigner)};
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退出&E"), this, QStringLiteral("Esc"));
    auto* accounts = new QHBoxLayout;
    accounts->addWidget(new TallyPanel(choice, this), 2);
    accounts->addWidget(new SettlementPanel(choice, this), 1);
    accounts->addWidget(new OrderListsPanel(choice, this), 1);
    auto* body = new QWidget;
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(lists_, 1);
    rows->addLayout(accounts);
    LayOutAboveButtons(this, body, {exit});
    resize(kFirstSize);

    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [&] {
        QList<QStringList> windows;
        for (const WindowEntry& window : ListWindows(App().Main(), project.number)) windows << ToRow(window);
        lists_->Offered().AddRows(windows);
    });
}

}  // namespace kalvane
