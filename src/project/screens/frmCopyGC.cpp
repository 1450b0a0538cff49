#include "project/screens/frmCopyGC.h"

#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "project/copy_windows.h"
#include "project/screens/window_rows.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/pick_lists.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(1120, 640);
constexpr int kNumberColumn = 4;  // of a project
}  // namespace

frmCopyGC::frmCopyGC(const Project& target, QWidget* parent)
    : Screen(QStringLiteral("frmCopyGC"), QStringLiteral("复制工程门窗->") + ToQt(target.name), parent),
      target_(target.number),
      projects_(new ReportList(QStringLiteral("Lvw1"), ProjectColumns(), this)),
      windows_(new PickLists(
          {.offeredName = QStringLiteral("Lvw2"),
           .chosenName = QStringLiteral("Lvw3"),
           .offeredHeading = QStringLiteral("可选工程->门窗"),
           .chosenHeading = QStringLiteral("已选入门窗"),
           .columns = WindowColumns(),
           .choose = {"CmdSelect", QStringLiteral("选入->"), QStringLiteral("无可选入对象！")},
           .remove = {"CmdRemove", QStringLiteral("移除<-"), QStringLiteral("无可移除对象！")},
           .chooseAll = {"CmdSelectAll", QStringLiteral("全选入>>"), QStringLiteral("无可选入对象！")},
           .removeAll = {"CmdRemoveAll", QStringLiteral("全删除<<"), QStringLiteral("无可选入对象！")},
           .copies = true},
          this)) {
    QPushButton* save = MakeButton("CmdSave", QStringLiteral("保存返回"), this);
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("返回"), this, QStringLiteral("Esc"));
    auto* offered = new QWidget(this);
    auto* rows = new QVBoxLayout(offered);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(new QLabel(QStringLiteral("可选工程"), offered));
    rows->addWidget(projects_, 1);
    auto* body = new QSplitter(Qt::Vertical, this);
    body->setChildrenCollapsible(false);
    body->addWidget(offered);
    body->addWidget(windows_);
    body->setStretchFactor(1, 2);
    LayOutAboveButtons(this, body, {save, exit});
    resize(kFirstSize);

    OnSignal(projects_, &ReportList::itemSelectionChanged, this, [this] { ShowWindows(); });
    OnSignal(save, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] {
        QList<QStringList> texts;
        for (const Project& project : ListProjects(App().Main())) texts << ToRow(project);
        projects_->AddRows(texts);
    });
}

void frmCopyGC::ShowWindows() {
    ReportList& offered = windows_->Offered();
    offered.Clear();
    const int row = projects_->SelectedRow();
    if (row < 0) return;
    QList<QStringList> texts;
    for (const WindowEntry& window : ListWindows(App().Main(), FromQt(projects_->Text(row, kNumberColumn)))) {
        texts << ToRow(window);
    }
    offered.AddRows(texts);
}

void frmCopyGC::Save() {
    ReportList& chosen = windows_->Chosen();
    if (chosen.RowCount() == 0) return Tell(this, QStringLiteral("无当前工程的门窗！"));
    std::vector<WindowEntry> windows;
    for (const int row : chosen.AllRows()) windows.push_back(ToWindow(chosen.Row(row)));
    try {
        CopyWindows(App().Main(), windows, target_);
    } catch (const CopyRefusal& refusal) {
        // What is left can be saved again without a second copy of those before.
        for (std::size_t i = 0; i < refusal.Copied(); ++i) chosen.RemoveRow(0);
        throw;
    }
    accept();
}

}  // namespace kalvane
