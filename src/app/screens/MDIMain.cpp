#include "app/screens/MDIMain.h"

#include <QAction>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <functional>
#include <optional>

#include "app/screens/frmAbort.h"
#include "app/screens/frmSetting.h"
#include "app/screens/frmUserChangPwd.h"
#include "app/screens/frmUserMng.h"
#include "app/screens/kalvane_kernel.h"
#include "app/screens/picture_area.h"
#include "app/startup.h"
#include "drawing/screens/FrmDraw.h"
#include "numeric/assertion.h"
#include "optimise/screens/PYH02.h"
#include "platform/help_text.h"
#include "platform/settings_store.h"
#include "session/app_state.h"
#include "session/settings_in_force.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/main_frame.h"
#include "ui/message_notice.h"
#include "ui/screen_memory.h"
#include "ui/text.h"
#include "ui/text_screen.h"
#include "warehouse/clear_stock.h"

namespace kalvane {
namespace {

constexpr std::int16_t kWindCheckAtStart = 1;
constexpr QSize kFirstSize(1180, 800);
constexpr int kToolbarIcon = 32;
constexpr int kToolbarButtonWidth = 72;
const QString kGeometryKey = QStringLiteral("MDIMain.geometry");

}  // namespace

/// One command of the main screen. Without `open` its screen is still to come, and it stays disabled.
struct MDIMain::Entry {
    QString name;
    QString caption;
    QString icon;
    std::optional<Right> right;
    std::function<void(MDIMain&)> open;
};

struct MDIMain::EntryMenu {
    QString name;
    QString caption;
    std::optional<Right> right;  ///< of the whole menu
    std::vector<Entry> entries;
};

const std::vector<MDIMain::EntryMenu>& MDIMain::Menus() {
    static const std::vector<EntryMenu> menus = {
        {QStringLiteral("mnuOperate"),
         QStringLiteral("操作"),
         {},
         {
             {QStringLiteral("mnuDatabase"), QStringLiteral("材料库"), QStringLiteral("catalogue"),
              Right::Catalogue, nullptr},
             {QStringLiteral("mnuDrawPicture"), QStringLiteral("绘制图"), QStringLiteral("drawing"),
              Right::Drawing, [](MDIMain& frame) { frame.ShowDrawingDesk(); }},
             {QStringLiteral("mnuDesign"), QStringLiteral("窗型设计"), QStringLiteral("design"),
              Right::Design, nullptr},
             {QStringLiteral("mnuProject"), QStringLiteral("工程管理"), QStringLiteral("project"),
              Right::Project, [](MDIMain&) { KalvaneKernel().ShowGCGL(); }},
             {QStringLiteral("mnuYouhua"), QStringLiteral("材料优化"), QStringLiteral("optimise"),
              Right::Optimise, [](MDIMain& frame) { PYH02().YH02Show(&frame); }},
             {QStringLiteral("mnuFYJH"), QStringLiteral("风压校核"), QStringLiteral("wind"), Right::WindCheck,
              nullptr},
             {QStringLiteral("mnuExit"),
              QStringLiteral("退出"),
              QStringLiteral("exit"),
              {},
              [](MDIMain& frame) { frame.close(); }},
         }},
        {QStringLiteral("mnuTools"),
         QStringLiteral("工具"),
         {},
         {
             {QStringLiteral("mnuDatabaseManage"), QStringLiteral("备份/恢复"), QStringLiteral("backup"),
              Right::Backup, [](MDIMain& frame) { KalvaneKernel().ShowTools(&frame); }},
             {QStringLiteral("mnuPath"), QStringLiteral("设置"), QStringLiteral("settings"), Right::Settings,
              [](MDIMain& frame) { frmSetting(&frame).exec(); }},
             {QStringLiteral("mnuChangeBackgroup"), QStringLiteral("更改背景"), QStringLiteral("picture"),
              Right::Background, [](MDIMain& frame) { frame.ChangeBackground(); }},
         }},
        {QStringLiteral("mnuUsers"),
         QStringLiteral("用户管理"),
         {},
         {
             {QStringLiteral("mnuUserMng"), QStringLiteral("用户管理"), QStringLiteral("users"), Right::Users,
              [](MDIMain& frame) { frmUserMng(&frame).exec(); }},
             {QStringLiteral("mnuMdifyPwd"), QStringLiteral("更改密码"), QStringLiteral("password"),
              Right::Password, [](MDIMain& frame) { frmUserChangPwd(&frame).exec(); }},
         }},
        {QStringLiteral("mnuCangKu"),
         QStringLiteral("仓库管理"),
         Right::Stock,
         {
             {QStringLiteral("mnuInput"), QStringLiteral("入库"), QStringLiteral("goods_in"), Right::Stock,
              nullptr},
             {QStringLiteral("mnuOutput"), QStringLiteral("出库"), QStringLiteral("goods_out"), Right::Stock,
              nullptr},
             {QStringLiteral("mnuQuery"), QStringLiteral("查寻"), QStringLiteral("query"), Right::Stock,
              nullptr},
             {QStringLiteral("mnuClearCK"), QStringLiteral("清空仓库"), QStringLiteral("clear"), Right::Stock,
              [](MDIMain& frame) { frame.ClearWarehouse(); }},
         }},
        {QStringLiteral("mnuHelp"),
         QStringLiteral("帮助"),
         {},
         {
             {QStringLiteral("mnuAbout"),
              QStringLiteral("关于"),
              QStringLiteral("about"),
              {},
              [](MDIMain& frame) { frame.ShowAbout(); }},
             {QStringLiteral("mnuHelps"),
              QStringLiteral("帮助 "),
              QStringLiteral("help"),
              {},
              [](MDIMain& frame) { frame.ShowHelp(); }},
         }},
    };
    return menus;
}

const MDIMain::Entry& MDIMain::EntryNamed(const QString& name) {
    for (const EntryMenu& menu : Menus()) {
        for (const Entry& entry : menu.entries) {
            if (entry.name == name) return entry;
        }
    }
    KALVANE_ASSERT(false);
}

MDIMain::MDIMain() : area_(new PictureArea(this)) {
    setObjectName(QStringLiteral("MDIMain"));
    setWindowTitle(QStringLiteral("KalvaneV7.0"));
    setCentralWidget(area_);
    area_->LoadPicture(QStringLiteral(":/ui/background.svg"));
    SetMainFrame(area_);
    MakeMenus();
    MakeToolbar();
    MakeStatusBar();
    resize(kFirstSize);
    restoreGeometry(QByteArray::fromBase64(Remembered(kGeometryKey, {}).toLatin1()));
}

void MDIMain::Load() {
    MessageNotice notice(this);
    ReadOutputSettings(App(), kWindCheckAtStart);
    App().optimise = ReadOptimiseSettings(*App().settings, notice);
    OpenStockStore(App(), notice);
    OpenMainStore(App(), notice);
    ApplyRights();
}

void MDIMain::closeEvent(QCloseEvent* event) {
    area_->closeAllSubWindows();
    for (const QMdiSubWindow* child : area_->subWindowList()) {
        if (!child->isVisible()) continue;  // closed, deleted when the loop comes round
        event->ignore();                    // the screen wants to stay
        return;
    }
    Remember(kGeometryKey, QString::fromLatin1(saveGeometry().toBase64()));
    event->accept();
}

void MDIMain::MakeMenus() {
    for (const EntryMenu& entryMenu : Menus()) {
        QMenu* menu = menuBar()->addMenu(entryMenu.caption);
        menu->setObjectName(entryMenu.name);
        menu->setToolTipsVisible(true);
        if (entryMenu.right) Guard(menu->menuAction(), *entryMenu.right);
        for (const Entry& entry : entryMenu.entries) menu->addAction(MakeAction(entry.name, entry));
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

    const Entry close = {
        QStringLiteral("x8"), QStringLiteral("退出"), QStringLiteral("exit"), {}, [](MDIMain& frame) {
            frame.CloseChildOrProgram();
        }};
    const std::vector<std::pair<QString, Entry>> buttons = {
        {QStringLiteral("x1"), EntryNamed(QStringLiteral("mnuDatabase"))},
        {QStringLiteral("x2"), EntryNamed(QStringLiteral("mnuDrawPicture"))},
        {QStringLiteral("x3"), EntryNamed(QStringLiteral("mnuDesign"))},
        {QStringLiteral("x4"), EntryNamed(QStringLiteral("mnuProject"))},
        {QStringLiteral("x5"), EntryNamed(QStringLiteral("mnuYouhua"))},
        {QStringLiteral("x9"), EntryNamed(QStringLiteral("mnuFYJH"))},
        {QStringLiteral("x6"), EntryNamed(QStringLiteral("mnuDatabaseManage"))},
        {QStringLiteral("x7"), EntryNamed(QStringLiteral("mnuHelps"))},
        {close.name, close},
    };
    for (const auto& [key, entry] : buttons) {
        if (!toolbar->actions().isEmpty()) toolbar->addSeparator();
        QAction* action = MakeAction(key, entry);
        toolbar->addAction(action);
        QWidget* button = toolbar->widgetForAction(action);
        button->setObjectName(key);
        button->setMinimumWidth(kToolbarButtonWidth);
        if (key == close.name) {
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

QAction* MDIMain::MakeAction(const QString& name, const Entry& entry) {
    auto* action = new QAction(QIcon(QStringLiteral(":/ui/%1.svg").arg(entry.icon)), entry.caption, this);
    action->setObjectName(name);
    if (!entry.open) {
        action->setEnabled(false);
        action->setToolTip(ComingToolTip());
        return action;
    }
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

void MDIMain::ChangeBackground() {
    const QString file = UseDialogs().OpenFileName(
        this, QStringLiteral("background"), QStringLiteral("所有文件|*.*|BMP|*.bmp|JPEG|*.JPEG|JPG|*.JPG"));
    if (file.isEmpty()) return;
    area_->LoadPicture(file);
    // Kept for the operator to look up; the next run shows the built-in picture again.
    App().settings->Save(kSettingsApplication, kSectionMain, "BACKGROUP", FromQt(file));
}

void MDIMain::ClearWarehouse() {
    ClearStock(App().Stock());
    UseDialogs().Message(this, QStringLiteral("操作已完成!"), QStringLiteral("提示"),
                         NoticeIcon::Information);
}

void MDIMain::CloseChildOrProgram() {
    if (QMdiSubWindow* child = area_->currentSubWindow()) {
        child->close();
    } else {
        close();
    }
}

void MDIMain::ShowDrawingDesk() {
    if (ActivateScreen(QStringLiteral("FrmDraw"))) return;
    (new FrmDraw(nullptr))->ShowModeless();
}

void MDIMain::ShowHelp() {
    TextScreen(QStringLiteral("frmHelp"), QStringLiteral("帮助"), ToQt(HelpText(App().folder)), this).exec();
}

void MDIMain::ShowAbout() {
    frmAbort(this).exec();
}

}  // namespace kalvane
