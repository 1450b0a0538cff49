#include "optimise/screens/frmYHMain.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

#include "optimise/screens/frmCreate01.h"
#include "optimise/screens/frmHandup.h"
#include "optimise/screens/frmOption.h"
#include "platform/help_text.h"
#include "session/app_state.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/text_screen.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(640, 300);
constexpr int kToolbarIcon = 32;
constexpr int kToolbarButtonWidth = 84;
const QString kFirstScheme = QStringLiteral("优化方案一");
const QString kSecondScheme = QStringLiteral("优化方案二");

}  // namespace

frmYHMain::frmYHMain(QWidget* parent)
    : Screen(QStringLiteral("frmYHMain"), QStringLiteral("塑钢门窗材料优化"), parent),
      options_(new QLabel(this)) {
    auto* toolbar = new QToolBar(this);
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setIconSize(QSize(kToolbarIcon, kToolbarIcon));
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    scheme_ =
        AddButton(*toolbar, 1, App().YHScheme == 0 ? kFirstScheme : kSecondScheme, QStringLiteral("scheme"));
    scheme_->setToolTip(QStringLiteral("切换优化方案"));
    toolbar->addSeparator();
    QAction* project = AddButton(*toolbar, 3, QStringLiteral("工程优化"), QStringLiteral("optimise"));
    QAction* manual = AddButton(*toolbar, 4, QStringLiteral("手工优化"), QStringLiteral("manual"));
    QAction* options = AddButton(*toolbar, 5, QStringLiteral("选项设置"), QStringLiteral("settings"));
    QAction* help = AddButton(*toolbar, 6, QStringLiteral("使用说明"), QStringLiteral("help"));
    QAction* exit = AddButton(*toolbar, 7, QStringLiteral("关闭窗口"), QStringLiteral("exit"));

    auto* group = new QGroupBox(QStringLiteral("当前设置"), this);
    auto* inside = new QVBoxLayout(group);
    inside->setContentsMargins(16, 12, 16, 16);
    inside->addWidget(options_);
    inside->addStretch();
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(toolbar);
    rows->addWidget(group, 1);
    resize(kFirstSize);

    OnSignal(scheme_, &QAction::triggered, this, [this] { SwitchScheme(); });
    OnSignal(project, &QAction::triggered, this, [this] { frmCreate01(this).exec(); });
    OnSignal(manual, &QAction::triggered, this, [this] { frmHandup(this).exec(); });
    OnSignal(options, &QAction::triggered, this, [this] { ShowOptions(); });
    OnSignal(help, &QAction::triggered, this, [this] { ShowHelp(); });
    OnSignal(exit, &QAction::triggered, this, [this] { close(); });
    Refresh();
}

QAction* frmYHMain::AddButton(QToolBar& toolbar, int index, const QString& caption, const QString& icon) {
    auto* action = new QAction(QIcon(QStringLiteral(":/ui/%1.svg").arg(icon)), caption, this);
    action->setObjectName(QStringLiteral("Toolbar1(%1)").arg(index));
    toolbar.addAction(action);
    QWidget* button = toolbar.widgetForAction(action);
    button->setObjectName(action->objectName());
    button->setMinimumWidth(kToolbarButtonWidth);
    return action;
}

void frmYHMain::SwitchScheme() {
    const bool toFirst = scheme_->text() != kFirstScheme;
    scheme_->setText(toFirst ? kFirstScheme : kSecondScheme);
    App().YHScheme = toFirst ? 0 : 1;
    Refresh();
}

void frmYHMain::ShowOptions() {
    frmOption(this).exec();
    Refresh();
}

void frmYHMain::ShowHelp() {
    TextScreen(QStringLiteral("frmHelp"), QStringLiteral("帮助"), ToQt(HelpText(App().folder)), this).exec();
}

void frmYHMain::Refresh() {
    const OptimiseSettings& settings = App().optimise;
    options_->setText(QStringLiteral("优化方案：%1\n材料长度：%2 mm\n料头长度：%3 mm\n切口宽度：%4 mm")
                          .arg(scheme_->text())
                          .arg(settings.CLC)
                          .arg(settings.LTC)
                          .arg(settings.CKK));
}

}  // namespace kalvane
