#include "app/screens/MDIMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "app/daily_copies.h"
#include "app/screens/main_entries.h"
#include "app/screens/picture_area.h"
#include "app/startup.h"
#include "session/app_state.h"
#include "session/settings_in_force.h"
#include "ui/guard.h"
#include "ui/main_frame.h"
#include "ui/message_notice.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr std::int16_t kWindCheckAtStart = 1;
constexpr QSize kFirstSize(1180, 800);
constexpr int kIdleMilliseconds = 2000;  // until the operator has seen the screen
constexpr int kToolbarIcon = 32;
constexpr int kToolbarButtonWidth = 72;
const QString kGeometryKey = QStringLiteral("MDIMain.geometry");

}  // namespace

MDIMain::MDIMain() : area_(new PictureArea(this)), idle_(new QTimer(this)) {
    setObjectName(QStringLiteral("MDIMain"));
    setWindowTitle(QStringLiteral("KalvaneV7.0"));
    setCentralWidget(area_);
    area_->LoadPicture(QStringLiteral(":/ui/background.svg"));
    SetMainFrame(area_);
    MakeMenus();
    MakeToolbar();
    MakeStatusBar();
    // A modal screen may be in the middle of something: it is waited for.
    OnSignal(idle_, &QTimer::timeout, this, [this] {
        if (QApplication::activeModalWidget() == nullptr) KeepCopies();
    });
    resize(kFirstSize);
    restoreGeometry(QByteArray::fromBase64(Remembered(kGeometryKey, {}).toLatin1()));
}

void MDIMain::Load() {
    MessageNotice notice(this);
    ReadOutputSettings(App(), kWindCheckAtStart);
    App().optimise = ReadOptimiseSettings(*App().settings, notice);
    OpenStockStore(App(), notice);
    OpenMainStore(App(), notice);
    OpenOwnStore(App(), notice);
    ApplyRights();
    idle_->start(kIdleMilliseconds);
}

void MDIMain::KeepCopies() {
    idle_->stop();
    MessageNotice notice(this);
    KeepDailyCopies(App(), notice);
}

void MDIMain::closeEvent(QCloseEvent* event) {
    area_->closeAllSubWindows();
    for (const QMdiSubWindow* child : area_->subWindowList()) {
        if (!child->isVisible()) continue;  // closed, deleted when the loop comes round
        event->ignore();                    // the screen wants to stay
        return;
    }
    if (idle_->isActive()) Guarded(this, [this] { KeepCopies(); });
    Remember(kGeometryKey, QString::fromLatin1(saveGeometry().toBase64()));
    event->accept();
}

void MDIMain::MakeMenus() {
    for (const MainMenu& mainMenu : MainMenus()) {
        QMenu* menu = menuBar()->addMenu(mainMenu.caption);
        menu->setObjectName(mainMenu.name);
        menu->setToolTipsVisible(true);
        if (mainMenu.right) Guard(menu->menuAction(), *mainMenu.right);
        for (const MainEntry& entry : mainMenu.entries) menu->addAction(MakeAction(entry.name, entry));
    }
}

void MDIMain::MakeToolbar() {
    auto* toolbar = new QToolBar(QStringLiteral("工具栏"), this);
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->setIconSize(QSize(kToolbarIcon, kToolbarIcon));
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    addToolBar(toolbar);
    for (const auto& [key, entry] : MainToolbar()) {
        if (!toolbar->actions().isEmpty()) toolbar->addSeparator();
        QAction* action = MakeAction(key, entry);
        toolbar->addAction(action);
        QWidget* button = toolbar->widgetForAction(action);
        button->setObjectName(key);
        button->setMinimumWidth(kToolbarButtonWidth);
        if (entry.name.isEmpty()) {
            action->setToolTip(QStringLiteral("关闭当前窗口；没有打开的窗口时退出程序"));
        }
    }
}

void MDIMain::MakeStatusBar() {
    const auto add = [this](const QString& name, const QString& text, int stretch) {
        auto* label = new QLabel(text, this);
        label->setObjectName(name);
        label->setContentsMargins(6, 2, 12, 2);
        statusBar()->addWidget(label, stretch);
    };
    add(QStringLiteral("lblUser"), QStringLiteral("用户：") + ToQt(App().userName), 0);
    add(QStringLiteral("lblFolder"), QStringLiteral("数据文件夹：") + ToQt(App().folder.string()), 1);
}

QAction* MDIMain::MakeAction(const QString& name, const MainEntry& entry) {
    auto* action = new QAction(QIcon(QStringLiteral(":/ui/%1.svg").arg(entry.icon)), entry.caption, this);
    action->setObjectName(name);
    OnSignal(action, &QAction::triggered, this, [this, open = entry.open] { open(*this); });
    if (entry.right) Guard(action, *entry.right);
    return action;
}

void MDIMain::Guard(QAction* action, Right right) {
    action->setEnabled(false);
    guarded_.emplace_back(action, right);
}

void MDIMain::ApplyRights() {
    for (const auto& [action, right] : guarded_) action->setEnabled(IsGranted(App().userAuth, right));
}

void MDIMain::ShowBackground(const QString& file) {
    area_->LoadPicture(file);
}

void MDIMain::CloseChildOrProgram() {
    if (QMdiSubWindow* child = area_->currentSubWindow()) {
        child->close();
    } else {
        close();
    }
}

}  // namespace kalvane
