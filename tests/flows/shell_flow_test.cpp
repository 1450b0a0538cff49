// From the login to the main screen, and what the main screen does by itself.

#include "app/enc_decrypt.h"
#include "app/instance_lock.h"
#include "app/login.h"
#include "app/screens/MDIMain.h"
#include "app/screens/frmLogin.h"
#include "app/screens/frmSetup.h"
#include "platform/files.h"
#include "store/helpers.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

// --- Login ---------------------------------------------------------------------------------------

class LoginTest : public ScreenTest {
  protected:
    /// Shows the login and does `work` with its controls.
    void Run(const std::function<void(QDialog&)>& work) {
        frmLogin login;
        user_ = Find<QComboBox>(&login, "cboUsrNm");
        password_ = Find<QLineEdit>(&login, "txtPassword");
        ModalScript().On("frmLogin", work).Run([&] { login.exec(); });
    }
    void Try(const char* user, const char* password) {
        user_->setCurrentText(QString::fromUtf8(user));
        password_->setText(QString::fromUtf8(password));
        QTest::keyClick(password_, Qt::Key_Return);
    }

    QComboBox* user_ = nullptr;
    QLineEdit* password_ = nullptr;
};

TEST_F(LoginTest, AsksForUserAndPasswordThenLogsIn) {
    Run([this](QDialog& login) {
        Press(login, "cmdOK");
        EXPECT_EQ(dialogs_.TakeShown(), "提示|请选择要登陆的用户");
        EXPECT_TRUE(user_->hasFocus());
        Try("user", "");
        EXPECT_EQ(dialogs_.TakeShown(), "提示|密码不能为空！请输入");
        EXPECT_TRUE(password_->hasFocus());
        Try("user", "user888");
        EXPECT_FALSE(login.isVisible());
    });
    EXPECT_TRUE(App().loginOK);
    EXPECT_EQ(App().userName + " " + App().userAuth, "user 000111001011");
    EXPECT_EQ(App().userPwd, clsEncDecrypt().KeyEncBuf("user888", kPasswordKey));
}

TEST_F(LoginTest, TheFourthWrongTryEndsIt) {
    const QString wrong = "提示|输入的密码不正确！";
    Run([&](QDialog& login) {
        for (const char* password : {"user888", "' or '1'='1", "x"}) {
            Try("Admin", password);
            EXPECT_EQ(dialogs_.TakeShown(), wrong) << password;
            EXPECT_TRUE(password_->hasFocus() && password_->text().isEmpty()) << password;
        }
        Try("Admin", "y");
        EXPECT_FALSE(login.isVisible());
    });
    EXPECT_EQ(dialogs_.TakeShown(), wrong + "\n提示|你输入已超过三次了！");
    EXPECT_FALSE(App().loginOK);
}

TEST_F(LoginTest, APasswordOfOneCharacterIsLookedUpAsNone) {
    Connection users(folder_ / kUserStoreName, StoreKind::Users);
    users.Execute("Insert into User values('short','','1')");
    EXPECT_TRUE(LogIn(App(), users, "short", "7"));
    EXPECT_FALSE(LogIn(App(), users, "Admin", "7"));
}

TEST_F(LoginTest, WithoutAUserStoreItEndsAtOnce) {
    std::filesystem::remove(folder_ / kUserStoreName);
    frmLogin login;
    EXPECT_EQ(login.exec(), QDialog::Rejected);
    ASSERT_EQ(dialogs_.shown.size(), 1);
    EXPECT_TRUE(dialogs_.shown[0].startsWith("出错！|‘用户’数据库打开出错！"));
}

TEST_F(LoginTest, TheSplashEndsByItselfAndEndsASecondProgramAtOnce) {
    InstanceLock lock(folder_.Path());
    frmSetup splash(lock);
    EXPECT_EQ(splash.exec(), QDialog::Accepted);
    InstanceLock second(folder_.Path());
    EXPECT_EQ(frmSetup(second).exec(), QDialog::Rejected);
}

// --- Main screen ---------------------------------------------------------------------------------

class MainScreenTest : public ScreenTest {
  protected:
    static void Trigger(MDIMain& frame, const char* name) { Find<QAction>(&frame, name)->trigger(); }

    /// Whether an entry can be reached: itself, and the menu it stands in.
    static bool IsEnabled(MDIMain& frame, const char* name) {
        const QAction* entry = Find<QAction>(&frame, name);
        for (const QMenu* menu : frame.findChildren<QMenu*>()) {
            if (menu->actions().contains(entry) && !menu->menuAction()->isEnabled()) return false;
        }
        return entry->isEnabled();
    }
};

/// Each entry of the menus and the toolbar that opens something, by the place of its right; 0 for none.
constexpr struct {
    const char* name;
    std::size_t right;
} kEntries[] = {
    {"mnuDatabase", 1},
    {"x1", 1},
    {"mnuDrawPicture", 2},
    {"x2", 2},
    {"mnuDesign", 3},
    {"x3", 3},
    {"mnuProject", 4},
    {"x4", 4},
    {"mnuYouhua", 5},
    {"x5", 5},
    {"mnuFYJH", 6},
    {"x9", 6},
    {"mnuDatabaseManage", 7},
    {"x6", 7},
    {"mnuPath", 8},
    {"mnuChangeBackgroup", 9},
    {"mnuUserMng", 10},
    {"mnuMdifyPwd", 11},
    {"mnuInput", 12},
    {"mnuOutput", 12},
    {"mnuQuery", 12},
    {"mnuClearCK", 12},
    {"mnuExit", 0},
    {"mnuAbout", 0},
    {"mnuHelps", 0},
    {"x7", 0},
    {"x8", 0},
};

TEST_F(MainScreenTest, RightsEnableEntries) {
    constexpr std::size_t kRights = 12;
    std::vector<std::string> rightsOfUsers = {std::string(kRights, '1'), std::string(kRights, '0'),
                                              std::string(kRights - 1, '1'), std::string(kRights + 1, '1')};
    for (std::size_t right = 1; right <= kRights; ++right) {
        rightsOfUsers.emplace_back(kRights, 'y')[right - 1] = '1';  // only "1" grants
    }
    for (const std::string& rights : rightsOfUsers) {
        // 中 is one character: it takes the place of the last right or stands behind it.
        for (const bool isChinese : {false, true}) {
            App().userAuth = isChinese ? rights.substr(0, rights.size() - 1) + "中" : rights;
            MDIMain frame;
            frame.Load();
            for (const auto& entry : kEntries) {
                const bool isGranted = rights.size() == kRights && entry.right > 0 &&
                                       rights[entry.right - 1] == '1' &&
                                       !(isChinese && entry.right == kRights);
                EXPECT_EQ(IsEnabled(frame, entry.name), entry.right == 0 || isGranted)
                    << entry.name << " for " << App().userAuth;
            }
        }
    }
}

TEST_F(MainScreenTest, EntriesAndButtonsOpenTheirScreens) {
    MDIMain frame;
    frame.Load();
    frame.show();
    const char* const modeless[][2] = {
        {"mnuDesign", "FrmDesign"}, {"x3", "FrmDesign"}, {"mnuProject", "frmMCGCGL"}, {"x4", "frmMCGCGL"}};
    for (const auto& [command, screen] : modeless) {
        for (int times = 0; times < 2; ++times) Trigger(frame, command);  // opens once
        const QList<QMdiSubWindow*> children = frame.findChild<QMdiArea*>()->subWindowList();
        ASSERT_EQ(children.size(), 1) << command;
        EXPECT_EQ(children[0]->widget()->objectName(), screen);
        qobject_cast<QDialog*>(children[0]->widget())->done(QDialog::Rejected);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const char* const modal[][2] = {
        {"mnuYouhua", "frmYHMain"},
        {"x5", "frmYHMain"},
        {"mnuFYJH", "frmFY"},
        {"x9", "frmFY"},
        {"mnuDatabaseManage", "frmTools"},
        {"x6", "frmTools"},
        {"mnuPath", "frmSetting"},
        {"mnuUserMng", "frmUserMng"},
        {"mnuMdifyPwd", "frmUserChangPwd"},
        {"mnuInput", "FrmEnter"},
        {"mnuOutput", "FrmPost"},
        {"mnuQuery", "FrmQuery"},
        {"mnuAbout", "frmAbort"},
        {"mnuHelps", "frmHelp"},
        {"x7", "frmHelp"},
    };
    for (const auto& [command, screen] : modal) {
        ModalScript().On(screen, [](QDialog&) {}).Run([&] { Trigger(frame, command); });
    }
}

TEST_F(MainScreenTest, ClearingTheWarehouseEmptiesAllFiveTables) {
    const std::string tables[] = {"入库单", "出库单", "入库单子表", "出库单子表", "库存表"};
    for (const std::string& table : tables) {
        App().Stock().Execute("Insert into " + table + (table == "库存表" ? " (名称)" : " (单据编号)") +
                              " values(7)");
    }
    MDIMain frame;
    frame.Load();
    Trigger(frame, "mnuClearCK");
    ASSERT_EQ(dialogs_.shown.size(), 2);
    EXPECT_EQ(dialogs_.shown[0], QStringLiteral("提示|操作已完成!"));
    const std::filesystem::path copy = dialogs_.shown[1].section(QStringLiteral("："), 1).toStdString();
    Connection kept(copy, StoreKind::Stock);
    EXPECT_EQ(test::Rows(kept, "Select 单据编号 from 出库单子表"), "7");
    for (const std::string& table : tables) {
        EXPECT_EQ(test::Rows(App().Stock(), "Select * from " + table), "") << table;
    }
    EXPECT_EQ(NextEnterNo(App().Stock()), "1");
}

TEST_F(MainScreenTest, ABackgroundIsShownAndSavedAndABadOneIsTold) {
    const QString good = InFolder("green.png");
    QImage green(10, 10, QImage::Format_RGB32);
    green.fill(Qt::green);
    ASSERT_TRUE(green.save(good));
    MDIMain frame;
    frame.Load();
    dialogs_.files = {QString(), InFolder(kUserStoreName), good};
    for (int i = 0; i < 2; ++i) Trigger(frame, "mnuChangeBackgroup");  // cancelled, and no picture
    EXPECT_EQ(dialogs_.shown.size(), 1);
    EXPECT_EQ(settings_.Read("Tesmar", "KALVANE", "BACKGROUP", "none"), "none");
    Trigger(frame, "mnuChangeBackgroup");
    const QImage shown = frame.findChild<QMdiArea*>()->viewport()->grab().toImage();
    EXPECT_EQ(shown.pixelColor(60, 60), QColor(Qt::green));
    EXPECT_EQ(settings_.Read("Tesmar", "KALVANE", "BACKGROUP", ""), good.toStdString());
}

/// Refuses to close, as a child with unsaved work does.
class Stubborn : public QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Close) event->ignore();
        return event->type() == QEvent::Close;
    }
};

TEST_F(MainScreenTest, X8ClosesTheChildFirstAndThenTheProgramExitAllOfIt) {
    MDIMain frame;
    frame.Load();
    frame.show();
    Trigger(frame, "mnuProject");
    const QPointer<QWidget> child = frame.findChild<QMdiArea*>()->subWindowList().at(0)->widget();
    Stubborn refusal;
    child->installEventFilter(&refusal);
    Trigger(frame, "x8");
    frame.close();
    EXPECT_TRUE(child->isVisible() && frame.isVisible()) << "the child has a say in the end of the program";
    child->removeEventFilter(&refusal);
    Trigger(frame, "x8");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(child == nullptr && frame.isVisible());
    Trigger(frame, "x8");
    EXPECT_FALSE(frame.isVisible());
    frame.show();
    for (const char* command : {"mnuProject", "mnuExit"}) Trigger(frame, command);
    EXPECT_FALSE(frame.isVisible());
}

TEST_F(MainScreenTest, ABrokenStoreIsToldAndTheScreenStaysUp) {
    App().mainConnection.reset();
    WriteFileAtomically(folder_ / kMainStoreName, "no store of ours");
    settings_.Save("Tesmar", "KALVANE", "OutPutFileType", "1");
    settings_.Save("Tesmar", "YHOPTION", "CLC", "40000");  // beyond 16 bits
    MDIMain frame;
    frame.Load();
    ASSERT_EQ(dialogs_.shown.size(), 2);
    EXPECT_TRUE(dialogs_.shown[1].startsWith("出错！|‘材料’数据库打开出错！")) << "title and text";
    EXPECT_EQ(NextEnterNo(App().Stock()), "1");
    EXPECT_EQ(App().outputFileType, 1);
    EXPECT_EQ(App().optimise.NODES, 20);
}

}  // namespace
}  // namespace kalvane::test
