#include "project/screens/choose_windows.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "project/screens/window_rows.h"
#include "project/wind_windows.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kFirstSize(900, 520);
}  // namespace

WindowChoice::WindowChoice(QWidget* parent)
    : Screen(QStringLiteral("frmFYGC"), QStringLiteral("取自工程"), parent),
      projects_(ListProjects(App().Main())),
      project_(new QComboBox(this)),
      windows_(new ReportList(QStringLiteral("Lvw"), WindowColumns(), this)) {
    project_->setObjectName(QStringLiteral("cboGC"));
    for (const Project& project : projects_) {
        project_->addItem(ToQt(project.name));
        if (project.number == App().currentProjectId) project_->setCurrentIndex(project_->count() - 1);
    }
    windows_->SelectSeveral();
    auto* body = new QWidget(this);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(project_);
    rows->addWidget(windows_, 1);
    rows->addWidget(
        new QLabel(QStringLiteral("选一樘填入校核界面；按住 Ctrl 或 Shift 选几樘，一次校核。"), body));
    QPushButton* ok = MakeButton("OKButton", QStringLiteral("确定"), this);
    QPushButton* cancel = MakeButton("CancelButton", QStringLiteral("取消"), this);
    ok->setDefault(true);
    LayOutAboveButtons(this, body, {ok, cancel});
    resize(kFirstSize);

    OnSignal(project_, &QComboBox::currentIndexChanged, this, [this] { ShowWindows(); });
    OnSignal(windows_, &ReportList::itemDoubleClicked, this, [this] { Confirm(); });
    OnSignal(ok, &QPushButton::clicked, this, [this] { Confirm(); });
    OnSignal(cancel, &QPushButton::clicked, this, [this] { Leave(); });
    ShowWindows();
}

const Project& WindowChoice::Chosen() const {
    return projects_[static_cast<std::size_t>(project_->currentIndex())];
}

void WindowChoice::ShowWindows() {
    QList<QStringList> rows;
    if (!projects_.empty()) {
        for (const WindowEntry& window : ListWindows(App().Main(), Chosen().number)) rows << ToRow(window);
    }
    windows_->Clear();
    windows_->AddRows(rows);
}

void WindowChoice::Confirm() {
    if (windows_->SelectedRows().empty()) return Tell(this, QStringLiteral("请选择要校核的门窗。"));
    accept();
}

std::vector<ProjectWindow> WindowChoice::Windows() {
    MessageNotice notice(this);
    FormulaRows rows(App().Main());
    std::vector<ProjectWindow> windows;
    for (const int row : windows_->SelectedRows()) {
        windows.push_back(
            WindowForCheck(App().Main(), rows, Chosen().name, ToWindow(windows_->Row(row)), notice));
    }
    return windows;
}

std::vector<ProjectWindow> ChooseWindowsForCheck(QWidget* parent) {
    WindowChoice choice(parent);
    if (choice.exec() != QDialog::Accepted) return {};
    return choice.Windows();
}

}  // namespace kalvane
