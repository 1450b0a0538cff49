#include "project/screens/frmOpenGC.h"

#include <QApplication>
#include <QPushButton>

#include "formula/composite.h"
#include "platform/settings_store.h"
#include "project/screens/filtered_windows.h"
#include "project/screens/frmAddGCMC.h"
#include "project/screens/frmAddGCZHMC.h"
#include "project/screens/project_papers.h"
#include "project/screens/window_rows.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/main_frame.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(980, 560);
constexpr int kNumberColumn = 8;
const QString kScreenName = QStringLiteral("frmOpenGC");
constexpr std::string_view kStartNumberKey = "AUTONUM";
}  // namespace

frmOpenGC::frmOpenGC(ProjectRoads roads, QWidget* parent)
    : Screen(kScreenName, QStringLiteral("工程名称->"), parent),
      roads_(std::move(roads)),
      lvw_(new ReportList(QStringLiteral("Lvw"), WindowColumns(), this)),
      windows_(new FilteredWindows(lvw_, this)) {
    QPushButton* add = MakeButton("CmdAdd", QStringLiteral("添加门窗"), this, QStringLiteral("Insert"));
    QPushButton* composite = MakeButton("CmcZHMC", QStringLiteral("添加组合门窗"), this);
    QPushButton* edit =
        MakeButton("CmdEdit", QStringLiteral("编辑门窗"), this, QStringLiteral("Enter 或双击"));
    QPushButton* del = MakeButton("CmdDel", QStringLiteral("删除门窗"), this, QStringLiteral("Delete"));
    QPushButton* number = MakeButton("CmdAutoNum", QStringLiteral("设置构件表号"), this);
    QPushButton* sheets = MakeButton("CmdPrint", QStringLiteral("构件表&O"), this);
    QPushButton* totals = MakeButton("CmdTotal", QStringLiteral("统计决算"), this);
    QPushButton* optimise =
        MakeButton("cmdYH", QStringLiteral("优化"), this, QStringLiteral("选择本工程的门窗，优化下料"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退出"), this, QStringLiteral("Esc"));
    QPushButton* list = MakeButton("CmdMCB", QStringLiteral("门窗表"), this,
                                   QStringLiteral("打印门窗表，带小图，供需方核对签章"));
    edit->setDefault(true);

    lvw_->OfferInMenu({edit, add, del});
    LayOutBesideButtons(this, windows_,
                        {{add, composite, edit, del}, {number, sheets, totals, optimise}, {list}}, exit);
    resize(kFirstSize);

    PressOnKeys(lvw_, Qt::Key_Insert, add);
    PressOnKeys(lvw_, Qt::Key_Delete, del);
    OnSignal(add, &QPushButton::clicked, this, [this] { Add(); });
    OnSignal(composite, &QPushButton::clicked, this, [this] { AddComposite(); });
    OnSignal(edit, &QPushButton::clicked, this, [this] { Edit(); });
    OnSignal(lvw_, &ReportList::itemDoubleClicked, this, [this] { Edit(); });
    OnSignal(del, &QPushButton::clicked, this, [this] { Delete(); });
    OnSignal(number, &QPushButton::clicked, this, [this] { AskStartNumber(); });
    OnSignal(sheets, &QPushButton::clicked, this, [this] { ShowSheets(); });
    OnSignal(optimise, &QPushButton::clicked, this, [this] { Optimise(); });
    OnSignal(totals, &QPushButton::clicked, this, [this] { ShowTotals(); });
    OnSignal(list, &QPushButton::clicked, this, [this] { PrintList(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
}

frmOpenGC* frmOpenGC::Shown() {
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* screen = qobject_cast<frmOpenGC*>(widget);
        if (screen != nullptr && screen->isVisible()) return screen;
    }
    return nullptr;
}

void frmOpenGC::Open(const Project& project, const ProjectRoads& roads) {
    if (frmOpenGC* shown = Shown()) {
        shown->SetProject(project);
        ActivateScreen(kScreenName);
        return;
    }
    auto screen = std::make_unique<frmOpenGC>(roads, nullptr);
    screen->SetProject(project);
    screen.release()->ShowModeless();  // deletes itself when it is closed
}

frmOpenGC* frmOpenGC::OfProject(const std::string& number) {
    frmOpenGC* shown = Shown();
    return shown != nullptr && shown->project_.number == number ? shown : nullptr;
}

void frmOpenGC::SetProject(const Project& project) {
    project_ = project;
    App().currentProjectId = project.number;
    App().currentProjectName = project.name;
    setWindowTitle(QStringLiteral("工程->") + ToQt(project.name));
    Reload(SelectedNumber());
}

void frmOpenGC::Reload(const QString& selected) {
    const std::vector<WindowEntry> windows = ListWindows(App().Main(), project_.number);
    QList<QStringList> rows;
    for (const WindowEntry& window : windows) rows << ToRow(window);
    lvw_->Clear();
    lvw_->AddRows(rows);
    for (int row = 0; row < lvw_->RowCount(); ++row) {
        if (lvw_->Text(row, kNumberColumn) == selected) lvw_->SelectRow(row);
    }
}

QString frmOpenGC::SelectedNumber() const {
    const int row = lvw_->SelectedRow();
    return row < 0 ? QString() : lvw_->Text(row, kNumberColumn);
}

void frmOpenGC::Add() {
    frmAddGCMC screen(this);
    screen.StartAdding(project_.number);
    RunWindowScreen(screen);
}

void frmOpenGC::Edit() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("无选取所要编辑的门窗！"));
    if (row < 0) return;
    const WindowEntry window = ToWindow(lvw_->Row(row));
    if (OpensAsComposite(window.typeNumber)) return EditComposite(window);
    frmAddGCMC screen(this);
    screen.StartEditing(window);
    RunWindowScreen(screen);
}

void frmOpenGC::AddComposite() {
    frmAddGCZHMC screen(this);
    screen.StartAdding(project_.number);
    RunCompositeScreen(screen);
}

void frmOpenGC::EditComposite(const WindowEntry& window) {
    frmAddGCZHMC screen(this);
    screen.StartEditing(window);
    RunCompositeScreen(screen);
}

void frmOpenGC::RunCompositeScreen(frmAddGCZHMC& screen) {
    connect(&screen, &frmAddGCZHMC::WindowSaved, this, [this](const QStringList& saved) {
        // An edited one goes to the end of the list, until that is filled anew.
        for (int row = lvw_->RowCount() - 1; row >= 0; --row) {
            if (lvw_->Text(row, kNumberColumn) == saved[kNumberColumn]) lvw_->RemoveRow(row);
        }
        lvw_->SelectRow(lvw_->AddRow(saved));
    });
    // The row of one whose save was refused may be gone.
    if (screen.exec() != QDialog::Accepted) Reload(SelectedNumber());
}

void frmOpenGC::PrintList() {
    std::vector<WindowEntry> windows;
    for (const int row : windows_->ShownRows()) windows.push_back(ToWindow(lvw_->Row(row)));
    if (windows.empty()) return Tell(this, QStringLiteral("当前工程中没有可打印的门窗！"));
    PrintWindowList(this, project_, windows);
}

void frmOpenGC::RunWindowScreen(frmAddGCMC& screen) {
    connect(&screen, &frmAddGCMC::WindowSaved, this, &frmOpenGC::Reload);
    screen.exec();
    // A window whose labels were refused is in the store all the same.
    Reload(SelectedNumber());
}

void frmOpenGC::Delete() {
    const int row = lvw_->SelectedOrTell(QStringLiteral("在当前工程中无删除的门窗！"));
    if (row < 0) return;
    const WindowEntry window = ToWindow(lvw_->Row(row));
    if (!AskToLose(this, QStringLiteral("确认要删除门窗：%1吗？").arg(ToQt(window.name)))) return;
    DeleteWindow(App().Main(), window.number);
    lvw_->RemoveRow(row);
}

void frmOpenGC::AskStartNumber() {
    SettingsStore& settings = *App().settings;
    const std::string current = settings.Read(kSettingsApplication, kSectionMain, kStartNumberKey, "1");
    // A cancelled box stores an empty number.
    const QString number =
        UseDialogs()
            .InputText(this, QStringLiteral("输入"), QStringLiteral("输入构件表的起始号码："), ToQt(current))
            .value_or(QString());
    settings.Save(kSettingsApplication, kSectionMain, kStartNumberKey, FromQt(number));
}

void frmOpenGC::ShowSheets() {
    if (lvw_->SelectedOrTell(QStringLiteral("当前工程中没有可打印的门窗！")) < 0) return;
    roads_.sheets(this, project_, FromQt(SelectedNumber()));
}

void frmOpenGC::Optimise() {
    roads_.optimise(this, project_);
}

void frmOpenGC::ShowTotals() {
    if (lvw_->RowCount() == 0) return Tell(this, QStringLiteral("当前工程中无门窗！"));
    roads_.totals(this, project_);
}

}  // namespace kalvane
