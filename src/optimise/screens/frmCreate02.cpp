#include "optimise/screens/frmCreate02.h"

#include <QPushButton>

#include "optimise/demand.h"
#include "optimise/screens/frmCreate03.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/pick_lists.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(1000, 480);
}  // namespace

frmCreate02::frmCreate02(const std::string& projectNumber, QWidget* parent)
    : EntryScreen(QStringLiteral("frmCreate02"), QStringLiteral("创建优化之步骤2---->选择门窗"), parent),
      lists_(new PickLists(
          {.offeredName = QStringLiteral("LvwR"),
           .chosenName = QStringLiteral("LvwD"),
           .offeredHeading = QStringLiteral("可选："),
           .chosenHeading = QStringLiteral("已选："),
           .columns = {QStringLiteral("门窗名称"), QStringLiteral("门窗类型"), QStringLiteral("制作尺寸"),
                       QStringLiteral("樘数"), QStringLiteral("门窗编号"), QStringLiteral("编号")},
           .choose = {"CmdMove", QStringLiteral("选入->"), QStringLiteral("无选择移动对象")},
           .remove = {"CmdRemove", QStringLiteral("<-移出"), QStringLiteral("无选择移除对象")},
           .chooseAll = {"CmdMoveAll", QStringLiteral("全选>>")},
           .removeAll = {"CmdRemoveAll", QStringLiteral("<<清空")}},
          this)) {
    QPushButton* next = MakeButton("CmdNext", QStringLiteral("&N 下一步"), this);
    next->setDefault(true);
    QPushButton* exit = MakeButton("Command1", QStringLiteral("&E 退出"), this);
    LayOutAboveButtons(this, lists_, {next, exit});
    resize(kFirstSize);

    OnSignal(next, &QPushButton::clicked, this, [this] { Next(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [&] { Load(projectNumber); });
}

void frmCreate02::Load(const std::string& projectNumber) {
    QList<QStringList> rows;
    for (const DemandWindow& window : ListDemandWindows(App().Main(), projectNumber)) {
        rows << QStringList{ToQt(window.name),  ToQt(window.type),       ToQt(window.makeSize),
                            ToQt(window.count), ToQt(window.windowType), ToQt(window.id)};
    }
    lists_->Offered().AddRows(rows);
}

void frmCreate02::Next() {
    const ReportList& chosen = lists_->Chosen();
    if (chosen.RowCount() == 0) {
        Tell(this, QStringLiteral("无选择所需优化门窗"));
        return;
    }
    std::vector<DemandWindow> windows;
    for (int row = 0; row < chosen.RowCount(); ++row) {
        const QStringList texts = chosen.Row(row);
        windows.push_back({FromQt(texts[0]), FromQt(texts[1]), FromQt(texts[2]), FromQt(texts[3]),
                           FromQt(texts[4]), FromQt(texts[5])});
    }
    GatherDemand(App().Main(), windows);
    frmCreate03(this).exec();
}

}  // namespace kalvane
