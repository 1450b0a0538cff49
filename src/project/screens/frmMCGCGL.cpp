#include "project/screens/frmMCGCGL.h"

#include <QPushButton>
#include <algorithm>

#include "project/copy_windows.h"
#include "project/screens/frmCopyGC.h"
#include "project/screens/frmGCHT.h"
#include "project/screens/frmOpenGC.h"
#include "project/screens/window_rows.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/entry_form.h"
#include "ui/guard.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(900, 520);
}  // namespace

frmMCGCGL::frmMCGCGL(ProjectRoads roads, QWidget* parent)
    : Screen(QStringLiteral("frmMCGCGL"), QStringLiteral("塑钢工程管理"), parent),
      roads_(std::move(roads)),
      lvw_(new ReportList(QStringLiteral("Lvw"), ProjectColumns(), this)) {
    QPushButton* add = MakeButton("CmdAdd", QStringLiteral("新建工程"), this, QStringLiteral("Insert"));
    QPushButton* edit = MakeButton("CmdEdit", QStringLiteral("编辑工程"), this, QStringLiteral("F2"));
    QPushButton* del = MakeButton("CmdDel", QStringLiteral("删除工程"), this,
                                  QStringLiteral("删除工程及其全部门窗和合同 (Delete)"));
    QPushButton* open =
        MakeButton("CmdOpen", QStringLiteral("打开工程"), this, QStringLiteral("Enter 或双击"));
    QPushButton* contract = MakeButton("CmdOpenHT", QStringLiteral("打开合同"), this);
    QPushButton* copy = MakeButton("CmdCopyGCMC", QStringLiteral("复制工程门窗"), this,
                                   QStringLiteral("把其它工程的门窗复制到选中的工程"));
    QPushButton* duplicate = MakeButton("CmdCopyGC", QStringLiteral("复制工程"), this,
                                        QStringLiteral("以新的名称复制整个工程，连同全部门窗"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退  出"), this, QStringLiteral("Esc"));
    open->setDefault(true);

    lvw_->OfferInMenu({open, contract, add, edit, del, duplicate});
    LayOutBesideButtons(this, lvw_, {{add, edit, del, open, contract, copy}, {duplicate}}, exit);
    resize(kFirstSize);

    PressOnKeys(lvw_, Qt::Key_Insert, add);
    PressOnKeys(lvw_, Qt::Key_F2, edit);
    PressOnKeys(lvw_, Qt::Key_Delete, del);
    OnSignal(add, &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(edit, &QPushButton::clicked, this, [this] { Edit(); });
    OnSignal(del, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(open, &QPushButton::clicked, this, [this] { Open(); });
    OnSignal(lvw_, &ReportList::itemDoubleClicked, this, [this] { Open(); });
    OnSignal(contract, &QPushButton::clicked, this, [this] { OpenContract(); });
    OnSignal(copy, &QPushButton::clicked, this, [this] { CopyWindowsHere(); });
    OnSignal(duplicate, &QPushButton::clicked, this, [this] { Duplicate(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    Guarded(this, [this] { Load(); });
}

void frmMCGCGL::Load() {
    QList<QStringList> rows;
    for (const Project& project : ListProjects(App().Main())) rows << ToRow(project);
    // By name; projects of one name in the order of the store.
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a[0] < b[0]; });
    lvw_->AddRows(rows);
}

void frmMCGCGL::Add() {
    const auto save = [](Project& project) { project.number = AddProject(App().Main(), project); };
    const std::optional<Project> project = Input(QStringLiteral("添加->工程"), {}, save);
    if (project) lvw_->SelectRow(lvw_->AddRow(ToRow(*project)));
}

void frmMCGCGL::Edit() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取所需编辑的对象！"));
    if (row < 0) return;
    const auto save = [](const Project& project) { UpdateProject(App().Main(), project); };
    const std::optional<Project> project =
        Input(QStringLiteral("编辑->工程"), ToProject(lvw_->Row(row)), save);
    if (!project) return;
    lvw_->SetRow(row, ToRow(*project));
    if (frmOpenGC* opened = frmOpenGC::OfProject(project->number)) opened->SetProject(*project);
}

void frmMCGCGL::Delete() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取所需删除的对象！"));
    if (row < 0) return;
    const Project project = ToProject(lvw_->Row(row));
    if (!AskToLose(this, QStringLiteral("确认要删除工程：%1吗？").arg(ToQt(project.name)))) return;
    DeleteProject(App().Main(), project.number);
    lvw_->RemoveRow(row);
    // A window added there later would belong to no project.
    if (frmOpenGC* opened = frmOpenGC::OfProject(project.number)) opened->Leave();
}

void frmMCGCGL::Open() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无打开的工程！"));
    if (row >= 0) frmOpenGC::Open(ToProject(lvw_->Row(row)), roads_);
}

void frmMCGCGL::OpenContract() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无存在工程无法打开工程合同！"));
    if (row < 0) return;
    frmGCHT contract(this);
    contract.SetProject(ToProject(lvw_->Row(row)));
    contract.exec();
}

void frmMCGCGL::CopyWindowsHere() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无打开的工程！"));
    if (row < 0) return;
    const Project target = ToProject(lvw_->Row(row));
    frmCopyGC(target, this).exec();
    if (frmOpenGC* opened = frmOpenGC::OfProject(target.number)) opened->SetProject(target);
}

void frmMCGCGL::Duplicate() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("请选择要复制的工程。"));
    if (row < 0) return;
    const Project project = ToProject(lvw_->Row(row));
    const QString offered = ToQt(project.name) + QStringLiteral(" 副本");
    const std::optional<QString> name =
        UseDialogs().InputText(this, QStringLiteral("复制工程"), QStringLiteral("新工程的名称："), offered);
    if (!name) return;
    if (name->isEmpty()) return Tell(this, QStringLiteral("数据不能为空！"));
    lvw_->SelectRow(lvw_->AddRow(ToRow(DuplicateProject(App().Main(), project, FromQt(*name)))));
}

std::optional<Project> frmMCGCGL::Input(const QString& title, Project project,
                                        const std::function<void(Project&)>& save) {
    FieldSlots& slots = SharedFieldSlots();
    EntryForm input(QStringLiteral("frmInputGC"), title,
                    {{.name = QStringLiteral("Text1(0)"),
                      .caption = QStringLiteral("工程名称："),
                      .slot = 2,
                      .column = QStringLiteral("工程名称")},
                     {.name = QStringLiteral("Text1(1)"),
                      .caption = QStringLiteral("工程地点："),
                      .slot = 3,
                      .column = QStringLiteral("工程地点")},
                     {.name = QStringLiteral("Text1(2)"),
                      .caption = QStringLiteral("甲方单位："),
                      .slot = 4,
                      .column = QStringLiteral("甲方单位")},
                     {.name = QStringLiteral("Text1(3)"),
                      .caption = QStringLiteral("合同编号："),
                      .slot = 1,
                      .column = QStringLiteral("合同编号")}},
                    slots, this);
    input.Fill({ToQt(project.name), ToQt(project.place), ToQt(project.client), ToQt(project.contractNumber)});
    const bool confirmed = input.Run([&] {
        project = {project.number, slots[1], slots[2], slots[3], slots[4]};
        save(project);
    });
    return confirmed ? std::optional(project) : std::nullopt;
}

}  // namespace kalvane
