// Users, settings, backup and restore, through their screens.

#include "app/company_settings.h"
#include "app/enc_decrypt.h"
#include "app/login.h"
#include "app/screens/MDIMain.h"
#include "app/screens/frmSetting.h"
#include "app/screens/frmUserChangPwd.h"
#include "app/screens/frmUserMng.h"
#include "app/startup.h"
#include "backup/screens/folder_tree.h"
#include "backup/screens/frmSaveFile.h"
#include "backup/screens/frmTools.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"
#include "ui/report_list.h"
#include "ui/screen_memory.h"

namespace kalvane::test {

// --- Users ---------------------------------------------------------------------------------------

class UserFlow : public ScreenTest {
  protected:
    static void Operate(frmUserMng& screen, int command) {
        Press(screen, qPrintable(QStringLiteral("cmdOpr(%1)").arg(command)));
    }
    enum Command { kAdd, kEdit, kDelete, kSave, kCancel };

    static QCheckBox* Box(frmUserMng& screen, int index) {
        return Find<QCheckBox>(&screen, qPrintable(QStringLiteral("chkAuth(%1)").arg(index)));
    }
    static QString Boxes(frmUserMng& screen) {
        QString rights;
        for (int i = 0; i < kRightCount; ++i) rights += QChar(Box(screen, i)->isChecked() ? u'1' : u'0');
        return rights;
    }
    std::string Users() {
        Connection store(folder_ / kUserStoreName, StoreKind::Users);
        return test::Rows(store, "Select userNm,userAuth from user");
    }
    std::string Scrambled(const char* password) { return clsEncDecrypt().KeyEncBuf(password, kPasswordKey); }
};

TEST_F(UserFlow, AddsEditsAndDeletes) {
    frmUserMng screen(nullptr);
    auto* list = Find<ReportList>(&screen, "lvw");
    const auto* name = Find<QLineEdit>(&screen, "txtUsrNm");
    const auto* password = Find<QLineEdit>(&screen, "txtUsrPwd");
    EXPECT_FALSE(name->isEnabled() || password->isEnabled());
    Operate(screen, kDelete);
    Operate(screen, kSave);
    EXPECT_EQ(dialogs_.TakeShown(), QStringList({QStringLiteral("提示|请选择要删除的用户！"),
                                                 QStringLiteral("提示|用户名不能为空！")}));
    list->SelectRow(1);
    EXPECT_EQ(name->text(), QStringLiteral("user"));
    EXPECT_EQ(password->text().toStdString(), Scrambled("user888"));
    EXPECT_EQ(Boxes(screen), QStringLiteral("000111001011"));

    Operate(screen, kAdd);
    EXPECT_TRUE(name->isEnabled() && password->isEnabled());
    EXPECT_EQ(name->text() + password->text() + Boxes(screen), QStringLiteral("000000000000"));
    SetText(screen, "txtUsrNm", "张三");
    Operate(screen, kSave);
    SetText(screen, "txtUsrPwd", "zs2025");
    SetText(screen, "txtUsrNm", "user");
    Operate(screen, kSave);
    EXPECT_EQ(dialogs_.TakeShown(), QStringList({QStringLiteral("提示|用户名密码不能为空！"),
                                                 QStringLiteral("提示！|用户名已存在，不能添加重复的项！")}));
    SetText(screen, "txtUsrNm", "O'Hara");
    Operate(screen, kSave);
    SetText(screen, "txtUsrNm", "九个字的用户名字呀");
    Operate(screen, kSave);
    EXPECT_EQ(dialogs_.TakeShown().size(), 2);  // the store's own messages
    SetText(screen, "txtUsrNm", "张三");
    Box(screen, 2)->click();
    Box(screen, 11)->click();
    Operate(screen, kSave);
    EXPECT_FALSE(name->isEnabled());
    EXPECT_EQ(list->Text(2, 0), QStringLiteral("张三"));
    EXPECT_EQ(Users(), "Admin|111111111111\nuser|000111001011\n张三|001000000001");
    Connection store(folder_ / kUserStoreName, StoreKind::Users);
    EXPECT_TRUE(LogIn(App(), store, "张三", "zs2025"));
    EXPECT_EQ(App().userAuth, "001000000001");

    Operate(screen, kEdit);
    EXPECT_FALSE(name->isEnabled() || password->isEnabled());
    Box(screen, 2)->click();
    Operate(screen, kSave);
    list->SelectRow(0);
    Operate(screen, kEdit);
    Box(screen, 0)->click();
    Operate(screen, kCancel);
    EXPECT_EQ(Boxes(screen), QStringLiteral("111111111111"));
    EXPECT_EQ(Users(), "Admin|111111111111\nuser|000111001011\n张三|000000000001");

    Operate(screen, kDelete);
    list->SelectRow(2);
    dialogs_.answers = {false, true};
    Operate(screen, kDelete);
    Operate(screen, kDelete);
    EXPECT_EQ(dialogs_.TakeShown(), QStringList({QStringLiteral("提示|系统管理员不能删除！"),
                                                 QStringLiteral("提示|确认要删除该用户吗？张三"),
                                                 QStringLiteral("提示|确认要删除该用户吗？张三")}));
    EXPECT_EQ(list->RowCount(), 2);
    EXPECT_EQ(Users(), "Admin|111111111111\nuser|000111001011");
}

TEST_F(UserFlow, ShowsOddRightsAndAnEmptyStore) {
    {
        Connection store(folder_ / kUserStoreName, StoreKind::Users);
        store.Execute("Delete * from user");
        store.Execute("Insert into user values('admin','','中1')");
    }
    frmUserMng screen(nullptr);
    auto* list = Find<ReportList>(&screen, "lvw");
    list->SelectRow(0);
    EXPECT_EQ(Boxes(screen), QStringLiteral("010000000000"));
    dialogs_.answers = {true};
    Operate(screen, kDelete);  // not the administrator: the name is compared exactly
    EXPECT_EQ(Users(), "");
    dialogs_.TakeShown();
    Operate(screen, kEdit);
    Operate(screen, kDelete);
    EXPECT_EQ(dialogs_.shown, QStringList({QStringLiteral("提示|没有可编辑的用户！"),
                                           QStringLiteral("提示|没有可删除的用户！")}));
    std::filesystem::remove(folder_ / kUserStoreName);
    EXPECT_EQ(frmUserMng(nullptr).exec(), QDialog::Rejected);
    EXPECT_EQ(frmUserChangPwd(nullptr).exec(), QDialog::Rejected);
}

TEST_F(UserFlow, ChangesThePassword) {
    App().userName = "user";
    App().userPwd = Scrambled("user888");
    frmUserChangPwd screen(nullptr);
    screen.show();
    const struct {
        const char* texts[3];
        const char* message;
    } cases[] = {
        {{"user888", "", "x"}, "提示！|新密码不能为空！"},
        {{"", "", ""}, "提示！|原密码不能为空！"},
        {{"user888", "neu1", ""}, "提示！|确认密码不能为空！"},
        {{"user887", "neu1", "neu1"}, "提示！|原密码输入不正确！"},
        {{"user888", "neu1", "neu2"}, "提示！|新密码与确认密码不相同！"},
        {{"user888", "neu1", "neu1"}, "提示！|密码修改成功！"},
    };
    for (const auto& [texts, message] : cases) {
        for (int i = 0; i < 3; ++i)
            SetText(screen, qPrintable(QStringLiteral("txtPwd(%1)").arg(i)), texts[i]);
        auto* last = Find<QLineEdit>(&screen, "txtPwd(2)");
        last->setFocus();
        QTest::keyClick(last, Qt::Key_Return);
        EXPECT_EQ(dialogs_.TakeShown(), QStringList(QString::fromUtf8(message)));
    }
    EXPECT_FALSE(screen.isVisible());
    EXPECT_EQ(App().userPwd, Scrambled("user888"));  // counts until the next login
    Connection store(folder_ / kUserStoreName, StoreKind::Users);
    EXPECT_TRUE(LogIn(App(), store, "user", "neu1"));
    EXPECT_FALSE(LogIn(App(), store, "Admin", "neu1"));
}

// --- Settings ------------------------------------------------------------------------------------

using SettingFlow = ScreenTest;

TEST_F(SettingFlow, ShowsItsDefaultsAndSavesEveryKey) {
    ReadOutputSettings(App(), 1);
    EXPECT_EQ(App().windCheckOption, 1);
    {
        frmSetting screen(nullptr);
        EXPECT_EQ(TextIn(screen, "txtCompany") + TextIn(screen, "txtTelnum") + TextIn(screen, "txtAddress"),
                  QString());
        EXPECT_EQ(TextIn(screen, "txtClPath"), InFolder(kMainStoreName));
        EXPECT_EQ(TextIn(screen, "txtCkPath"), InFolder(kStockStoreName));
        EXPECT_TRUE(Find<QRadioButton>(&screen, "OptExcel")->isChecked());
        EXPECT_TRUE(Find<QRadioButton>(&screen, "optStandard")->isChecked());
        Press(screen, "cmdView1");
        Press(screen, "cmdView2");
        Press(screen, "cmdCancel");
    }
    EXPECT_EQ(App().windCheckOption, 0);  // opening it was enough
    EXPECT_FALSE(std::filesystem::exists(folder_ / "settings"));

    frmSetting screen(nullptr);
    SetText(screen, "txtCompany", "王's 门窗");
    SetText(screen, "txtTelnum", "0531");
    SetText(screen, "txtAddress", "一路");
    SetText(screen, "txtClPath", "x");
    SetText(screen, "txtCkPath", "");
    Find<QRadioButton>(&screen, "OptText")->click();
    Find<QRadioButton>(&screen, "optEasy")->click();
    Press(screen, "cmdOK");
    EXPECT_EQ(App().outputFileType, 1);
    EXPECT_EQ(App().windCheckOption, 1);
    const SettingsStore saved(folder_ / "settings");
    const char* const keys[][4] = {
        {"Tesmar", "KALVANE", "DW", "王's 门窗"}, {"Tesmar", "KALVANE", "TEL", "0531"},
        {"Tesmar", "KALVANE", "ADDRESS", "一路"}, {"Norvex", "Param", "CLMDBPATH", "x"},
        {"Norvex", "Param", "CKMDBPATH", ""},     {"Tesmar", "KALVANE", "OutPutFileType", "1"},
        {"Tesmar", "KALVANE", "FYOPTION", "1"},
    };
    for (const auto& [application, section, key, text] : keys) {
        EXPECT_EQ(saved.Read(application, section, key, "none"), text) << key;
    }
    frmSetting again(nullptr);
    EXPECT_EQ(TextIn(again, "txtCompany"), QStringLiteral("王's 门窗"));
    EXPECT_TRUE(Find<QRadioButton>(&again, "OptText")->isChecked());
    EXPECT_TRUE(Find<QRadioButton>(&again, "optEasy")->isChecked());
}

// --- Backup and restore --------------------------------------------------------------------------

class BackupFlow : public ScreenTest {
  protected:
    static std::string Projects() { return Rows("Select * from 工程"); }
};

TEST_F(BackupFlow, TheStoreIsThrownAwayAndEverythingComesBack) {
    App().Main().Execute("Insert into 工程 (编号,工程名称) values(2,'阳光花园')");
    const std::string before = Projects();
    std::filesystem::create_directory(folder_ / "盘");
    {
        frmTools tools(nullptr);
        ModalScript()
            .On("frmSaveFile",
                [this](QDialog& screen) {
                    auto* folder = Find<FolderTree>(&screen, "Dir1");
                    EXPECT_EQ(folder->Folder(), QFileInfo(InFolder("")).absolutePath());
                    Press(screen, "OKButton");
                    SetText(screen, "TxtFileName", "好");
                    folder->SetFolder({});
                    Press(screen, "OKButton");
                    folder->SetFolder(InFolder("盘"));
                    Press(screen, "OKButton");
                    EXPECT_FALSE(screen.isVisible());
                })
            .Run([&] { Press(tools, "CmdBackup"); });
    }
    EXPECT_EQ(dialogs_.TakeShown(),
              QStringList({QStringLiteral("提示|文件名不能为空！"), QStringLiteral("提示|路径不能为空！"),
                           QStringLiteral("提示|已备份完毕！")}));
    EXPECT_EQ(Remembered(QStringLiteral("backup.folder"), {}), InFolder("盘"));

    App().mainConnection.reset();
    std::filesystem::remove(folder_ / kMainStoreName);
    CreateMissingStores(folder_.Path());
    App().mainConnection = std::make_unique<Connection>(folder_ / kMainStoreName, StoreKind::Main);
    EXPECT_NE(Projects(), before);
    MDIMain frame;
    frame.Load();
    frame.show();
    dialogs_.files = {QString(), InFolder("盘/好.MBK"), InFolder(kStockStoreName)};
    ModalScript()
        .On("frmTools",
            [&](QDialog& screen) {
                Press(screen, "CmdRestore");  // cancelled
                EXPECT_TRUE(dialogs_.shown.isEmpty());
                Press(screen, "CmdRestore");
                EXPECT_EQ(Projects(), before);
                EXPECT_EQ(dialogs_.TakeShown(), QStringList(QStringLiteral("提示|数据恢复完毕！")));
                dialogs_.answers = {true};
                Press(screen, "CmdRestore");  // a store, but not this one: the copy is put back
                EXPECT_EQ(Projects(), before);
                EXPECT_EQ(dialogs_.shown.size(), 2);
                EXPECT_FALSE(Find<QProgressBar>(&screen, "ProgressBar")->isVisible());
            })
        .Run([&] { Find<QAction>(&frame, "x6")->trigger(); });
    EXPECT_EQ(dialogs_.filters.back(), QStringLiteral("打开数据库(*.MBK)|*.MBK"));
}

TEST_F(BackupFlow, TheDriveMovesTheFolderAndAFailureKeepsTheScreen) {
    settings_.Save("Tesmar", "KALVANE", "DATABASE", "/usr/share/cl.mdb");
    frmSaveFile screen(nullptr);
    screen.show();
    auto* folder = Find<FolderTree>(&screen, "Dir1");
    auto* drive = Find<QComboBox>(&screen, "Drive1");
    EXPECT_EQ(folder->Folder(), QStringLiteral("/usr/share"));
    drive->setCurrentIndex(drive->findData(QDir::rootPath()));
    Q_EMIT drive->activated(drive->currentIndex());
    EXPECT_EQ(folder->Folder(), QDir::rootPath());
    folder->SetFolder(QFileInfo(InFolder("")).absolutePath());
    SetText(screen, "TxtFileName", kMainStoreName);
    Press(screen, "OKButton");
    EXPECT_EQ(dialogs_.shown.size(), 1);
    EXPECT_TRUE(screen.isVisible());
}

}  // namespace kalvane::test
