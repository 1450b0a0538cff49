#include "app/screens/main_entries.h"

#include "app/screens/MDIMain.h"
#include "app/screens/frmAbort.h"
#include "app/screens/frmSetting.h"
#include "app/screens/frmUserChangPwd.h"
#include "app/screens/frmUserMng.h"
#include "app/screens/kalvane_kernel.h"
#include "drawing/screens/FrmDraw.h"
#include "numeric/assertion.h"
#include "optimise/screens/PYH02.h"
#include "platform/help_text.h"
#include "platform/settings_store.h"
#include "project/screens/choose_windows.h"
#include "session/app_state.h"
#include "store/helpers.h"
#include "ui/dialogs.h"
#include "ui/main_frame.h"
#include "ui/text.h"
#include "ui/text_screen.h"
#include "warehouse/clear_stock.h"
#include "warehouse/screens/FrmEnter.h"
#include "warehouse/screens/FrmPost.h"
#include "warehouse/screens/FrmQuery.h"
#include "wind/screens/FrmMainFY01.h"
#include "wind/screens/frmFY.h"

namespace kalvane {
namespace {

void ShowDrawingDesk() {
    if (ActivateScreen(QStringLiteral("FrmDraw"))) return;
    (new FrmDraw(nullptr))->ShowModeless();
}

void ChangeBackground(MDIMain& frame) {
    const QString file = UseDialogs().OpenFileName(
        &frame, QStringLiteral("background"), QStringLiteral("所有文件|*.*|BMP|*.bmp|JPEG|*.JPEG|JPG|*.JPG"));
    if (file.isEmpty()) return;
    frame.ShowBackground(file);
    // Kept for the operator to look up; the next run shows the built-in picture again.
    App().settings->Save(kSettingsApplication, kSectionMain, "BACKGROUP", FromQt(file));
}

void ShowGoodsIn(MDIMain& frame) {
    App().enterNoteNumber = NextEnterNo(App().Stock());
    FrmEnter(App().enterNoteNumber, &frame).exec();
}

void ShowGoodsOut(MDIMain& frame) {
    App().postNoteNumber = NextPostNo(App().Stock());
    FrmPost(App().postNoteNumber, &frame, KalvaneKernel::Needs()).exec();
}

void ClearWarehouse(MDIMain& frame) {
    const std::filesystem::path copy = ClearStockKeepingCopy(App().Stock());
    Tell(&frame, QStringLiteral("操作已完成!"));
    Tell(&frame, QStringLiteral("清空前的仓库保存在：%1").arg(ToQt(copy.string())));
}

void ShowWindCheck(MDIMain& frame) {
    if (App().windCheckOption != 0) {
        frmFY(ChooseWindowsForCheck, &frame).exec();
    } else {
        FrmMainFY01(ChooseWindowsForCheck, &frame).exec();
    }
}

void ShowHelp(MDIMain& frame) {
    const QString text = ToQt(HelpText(App().folder));
    TextScreen(QStringLiteral("frmHelp"), QStringLiteral("帮助"), text, &frame).exec();
}

const MainEntry& EntryNamed(const QString& name) {
    for (const MainMenu& menu : MainMenus()) {
        for (const MainEntry& entry : menu.entries) {
            if (entry.name == name) return entry;
        }
    }
    KALVANE_ASSERT(false);
}

}  // namespace

const std::vector<MainMenu>& MainMenus() {
    static const std::vector<MainMenu> menus = {
        {QStringLiteral("mnuOperate"),
         QStringLiteral("操作"),
         {},
         {
             {QStringLiteral("mnuDatabase"), QStringLiteral("材料库"), QStringLiteral("catalogue"),
              Right::Catalogue, [](MDIMain&) { KalvaneKernel().ShowDatabase(); }},
             {QStringLiteral("mnuDrawPicture"), QStringLiteral("绘制图"), QStringLiteral("drawing"),
              Right::Drawing, [](MDIMain&) { ShowDrawingDesk(); }},
             {QStringLiteral("mnuDesign"), QStringLiteral("窗型设计"), QStringLiteral("design"),
              Right::Design, [](MDIMain&) { KalvaneKernel().ShowDesign(); }},
             {QStringLiteral("mnuProject"), QStringLiteral("工程管理"), QStringLiteral("project"),
              Right::Project, [](MDIMain&) { KalvaneKernel().ShowGCGL(); }},
             {QStringLiteral("mnuYouhua"), QStringLiteral("材料优化"), QStringLiteral("optimise"),
              Right::Optimise, [](MDIMain& frame) { PYH02().YH02Show(&frame); }},
             {QStringLiteral("mnuFYJH"), QStringLiteral("风压校核"), QStringLiteral("wind"), Right::WindCheck,
              [](MDIMain& frame) { ShowWindCheck(frame); }},
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
              Right::Background, [](MDIMain& frame) { ChangeBackground(frame); }},
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
              [](MDIMain& frame) { ShowGoodsIn(frame); }},
             {QStringLiteral("mnuOutput"), QStringLiteral("出库"), QStringLiteral("goods_out"), Right::Stock,
              [](MDIMain& frame) { ShowGoodsOut(frame); }},
             {QStringLiteral("mnuQuery"), QStringLiteral("查寻"), QStringLiteral("query"), Right::Stock,
              [](MDIMain& frame) { FrmQuery(&frame).exec(); }},
             {QStringLiteral("mnuClearCK"), QStringLiteral("清空仓库"), QStringLiteral("clear"), Right::Stock,
              [](MDIMain& frame) { ClearWarehouse(frame); }},
         }},
        {QStringLiteral("mnuHelp"),
         QStringLiteral("帮助"),
         {},
         {
             {QStringLiteral("mnuAbout"),
              QStringLiteral("关于"),
              QStringLiteral("about"),
              {},
              [](MDIMain& frame) { frmAbort(&frame).exec(); }},
             {QStringLiteral("mnuHelps"),
              QStringLiteral("帮助 "),
              QStringLiteral("help"),
              {},
              [](MDIMain& frame) { ShowHelp(frame); }},
         }},
    };
    return menus;
}

const std::vector<std::pair<QString, MainEntry>>& MainToolbar() {
    static const std::vector<std::pair<QString, MainEntry>> buttons = {
        {QStringLiteral("x1"), EntryNamed(QStringLiteral("mnuDatabase"))},
        {QStringLiteral("x2"), EntryNamed(QStringLiteral("mnuDrawPicture"))},
        {QStringLiteral("x3"), EntryNamed(QStringLiteral("mnuDesign"))},
        {QStringLiteral("x4"), EntryNamed(QStringLiteral("mnuProject"))},
        {QStringLiteral("x5"), EntryNamed(QStringLiteral("mnuYouhua"))},
        {QStringLiteral("x9"), EntryNamed(QStringLiteral("mnuFYJH"))},
        {QStringLiteral("x6"), EntryNamed(QStringLiteral("mnuDatabaseManage"))},
        {QStringLiteral("x7"), EntryNamed(QStringLiteral("mnuHelps"))},
        {QStringLiteral("x8"),
         {{},
          QStringLiteral("退出"),
          QStringLiteral("exit"),
          {},
          [](MDIMain& frame) { frame.CloseChildOrProgram(); }}},
    };
    return buttons;
}

}  // namespace kalvane
