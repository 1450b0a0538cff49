#include "optimise/screens/frmCreate01.h"

#include <QPushButton>

#include "optimise/screens/frmCreate02.h"
#include "project/project_list.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(760, 420);
constexpr int kNameColumn = 0;
constexpr int kNumberColumn = 3;
}  // namespace

frmCreate01::frmCreate01(QWidget* parent)
    : Screen(QStringLiteral("frmCreate01"), QStringLiteral("创建优化之步骤1---->选择工程"), parent),
      lvw_(new ReportList(QStringLiteral("LVW"),
                          {QStringLiteral("工程名称"), QStringLiteral("工程地点"), QStringLiteral("甲方单位"),
                           QStringLiteral("编号"), QStringLiteral("合同编号")},
                          this)) {
    QPushButton* next = MakeButton("CmdNext", QStringLiteral("&N 下一步"), this);
    next->setDefault(true);
    QPushButton* exit = MakeButton("Command1", QStringLiteral("&E 退出"), this);
    LayOutAboveButtons(this, lvw_, {next, exit});
    resize(kFirstSize);

    OnSignal(next, &QPushButton::clicked, this, [this] { Next(); });
    OnSignal(lvw_, &ReportList::itemDoubleClicked, this, [this] { Next(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { Load(); });
}

void frmCreate01::Load() {
    QList<QStringList> rows;
    for (const Project& project : ListProjects(App().Main())) {
        rows << QStringList{ToQt(project.name), ToQt(project.place), ToQt(project.client),
                            ToQt(project.number), ToQt(project.contractNumber)};
    }
    lvw_->AddRows(rows);
}

void frmCreate01::Next() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选择的工程"));
    if (row < 0) return;
    App().optimiseProjectName = FromQt(lvw_->Text(row, kNameColumn));
    frmCreate02(FromQt(lvw_->Text(row, kNumberColumn)), this).exec();
}

}  // namespace kalvane
