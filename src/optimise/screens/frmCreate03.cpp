#include "optimise/screens/frmCreate03.h"

#include <QProgressBar>
#include <QPushButton>

#include "optimise/run.h"
#include "optimise/screens/frmResult.h"
#include "optimise/screens/run_panel.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/pick_lists.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(680, 460);

}  // namespace

frmCreate03::frmCreate03(QWidget* parent)
    : EntryScreen(QStringLiteral("frmCreate03"), QStringLiteral("创建优化之步骤3---->选择材料"), parent),
      lists_(new PickLists({.offeredName = QStringLiteral("LvwR"),
                            .chosenName = QStringLiteral("LvwD"),
                            .offeredHeading = QStringLiteral("可选："),
                            .chosenHeading = QStringLiteral("已选："),
                            .columns = {QStringLiteral("规格")},
                            .choose = {"CmdMove", QStringLiteral("->"), QStringLiteral("无选择移动对象")},
                            .remove = {"CmdRemove", QStringLiteral("<-"), QStringLiteral("无选择移除对象")},
                            .chooseAll = {"CmdMoveAll", QStringLiteral(">>")},
                            .removeAll = {"CmdRemoveAll", QStringLiteral("<<")}},
                           this)),
      runPanel_(new RunPanel(this)) {
    QPushButton* next = MakeButton("CmdNext", QStringLiteral("&Y 优化"), this);
    next->setDefault(true);
    QPushButton* exit = MakeButton("Command1", QStringLiteral("&E 退出"), this);
    LayOutAboveButtons(this, lists_, {next, exit}, runPanel_);
    resize(kFirstSize);

    OnSignal(next, &QPushButton::clicked, this, [this] { Next(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { Load(); });
}

void frmCreate03::Load() {
    QList<QStringList> rows;
    for (const std::string& material : ListMaterials(App().Main())) rows << QStringList(ToQt(material));
    lists_->Offered().AddRows(rows);
}

void frmCreate03::Next() {
    if (runPanel_->IsRunning()) return;
    std::vector<std::string> materials;
    materials.reserve(static_cast<std::size_t>(lists_->Chosen().RowCount()));
    for (int row = 0; row < lists_->Chosen().RowCount(); ++row) {
        materials.push_back(FromQt(lists_->Chosen().Text(row, 0)));
    }
    if (!materials.empty()) Run(materials);
    frmResult(this).exec();
}

void frmCreate03::Run(const std::vector<std::string>& materials) {
    QProgressBar& bar = runPanel_->Bar();
    bar.setRange(1, static_cast<int>(materials.size()) + 1);
    bar.setValue(1);
    MessageNotice notice(this);
    runPanel_->Run(
        [&](const RunProgress& progress) {
            return RunOptimisation(App().Main(), App().optimise, App().YHScheme, materials, notice, progress);
        },
        [&](const RunStage& stage) {
            const int row = static_cast<int>(stage.material);
            bar.setValue(row + 2);
            if (App().YHScheme != 0) lists_->Chosen().SelectRow(row);
            return QStringLiteral("材料 %1 / %2，已排 %3 / %4 件")
                .arg(row + 1)
                .arg(materials.size())
                .arg(stage.placed)
                .arg(stage.pieces);
        });
}

void frmCreate03::done(int result) {
    if (runPanel_->IsRunning()) return runPanel_->CancelRun();  // the screen must not go away under its run
    EntryScreen::done(result);
}

}  // namespace kalvane
