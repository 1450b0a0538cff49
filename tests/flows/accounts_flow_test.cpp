// Users, their passwords, and the company's settings, through the screens.

#include "app/login.h"
#include "app/screens/frmSetting.h"
#include "app/screens/frmUserChangPwd.h"
#include "app/screens/frmUserMng.h"
#include "session/settings_in_force.h"
#include "support/screens/screen_kit.h"
#include "ui/report_list.h"

namespace kalvane::test {
namespace {

class AccountsTest : public ScreenTest {
  protected:
    /// What the user may do, or nothing when the login fails.
    std::string RightsOf(const char* user, const char* password) {
        Connection users(folder_ / kUserStoreName, StoreKind::Users);
        AppState state;
        return LogIn(state, users, user, password) ? state.userAuth : "";
    }
    void Tick(const QWidget& screen, std::initializer_list<int> rights) {
        for (const int right : rights) {
            Find<QCheckBox>(&screen, qPrintable(QStringLiteral("chkAuth(%1)").arg(right)))->click();
        }
    }
};

TEST_F(AccountsTest, AUserComesChangesAndGoes) {
    ModalScript()
        .On("frmUserMng",
            [&](QDialog& screen) {
                auto* list = Find<ReportList>(&screen, "lvw");
                ASSERT_EQ(list->RowCount(), 2);
                EXPECT_FALSE(Find<QLineEdit>(&screen, "txtUsrNm")->isEnabled());

                Press(screen, "cmdOpr(0)");
                Press(screen, "cmdOpr(3)");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|用户名不能为空！");
                SetText(screen, "txtUsrNm", "张三");
                Press(screen, "cmdOpr(3)");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|用户名密码不能为空！");
                SetText(screen, "txtUsrPwd", "ab12");
                Tick(screen, {3, 4, 11});
                Press(screen, "cmdOpr(3)");
                EXPECT_EQ(RightsOf("张三", "ab12"), "000110000001");
                EXPECT_EQ(list->Text(list->SelectedRow(), 0), "张三");

                // The password cannot be changed here, and shows as what is stored.
                Press(screen, "cmdOpr(1)");
                EXPECT_FALSE(Find<QLineEdit>(&screen, "txtUsrPwd")->isEnabled());
                EXPECT_EQ(TextIn(screen, "txtUsrPwd").size(), 16);
                Tick(screen, {0, 11});
                Press(screen, "cmdOpr(3)");
                EXPECT_EQ(RightsOf("张三", "ab12"), "100110000000");

                Press(screen, "cmdOpr(0)");
                SetText(screen, "txtUsrNm", "张三");
                SetText(screen, "txtUsrPwd", "other");
                Press(screen, "cmdOpr(3)");
                EXPECT_EQ(dialogs_.TakeShown(), "提示！|用户名已存在，不能添加重复的项！");
                Press(screen, "cmdOpr(4)");
                EXPECT_EQ(TextIn(screen, "txtUsrNm"), "张三");
                EXPECT_EQ(list->RowCount(), 3);

                dialogs_.answers = {false, true};
                Press(screen, "cmdOpr(2)");
                EXPECT_EQ(RightsOf("张三", "ab12"), "100110000000");
                Press(screen, "cmdOpr(2)");
                EXPECT_EQ(dialogs_.TakeShown(),
                          "提示|确认要删除该用户吗？张三\n提示|确认要删除该用户吗？张三");
                EXPECT_EQ(RightsOf("张三", "ab12"), "");

                list->SelectRow(0);
                Press(screen, "cmdOpr(2)");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|系统管理员不能删除！");
                list->setCurrentItem(nullptr);
                list->clearSelection();
                Press(screen, "cmdOpr(2)");
                EXPECT_EQ(dialogs_.TakeShown(), "提示|请选择要删除的用户！");
            })
        .Run([] { frmUserMng().exec(); });
}

TEST_F(AccountsTest, APasswordChangesForTheNextLogin) {
    ASSERT_NE(RightsOf("Admin", "admin888"), "");
    Connection users(folder_ / kUserStoreName, StoreKind::Users);
    ASSERT_TRUE(LogIn(App(), users, "Admin", "admin888"));
    const struct {
        const char* boxes[3];
        const char* shown;
    } tries[] = {
        {{"", "n", "n"}, "原密码不能为空！"},
        {{"admin888", "", "n"}, "新密码不能为空！"},
        {{"admin888", "n", ""}, "确认密码不能为空！"},
        {{"user888", "new1", "new1"}, "原密码输入不正确！"},
        {{"admin888", "new1", "new2"}, "新密码与确认密码不相同！"},
        {{"admin888", "new1", "new1"}, "密码修改成功！"},
        {{"new1", "new2", "new2"}, "原密码输入不正确！"},  // the login's password counts in this run
    };
    for (const auto& attempt : tries) {
        frmUserChangPwd screen;
        SetText(screen, "txtPwd(0)", attempt.boxes[0]);
        SetText(screen, "txtPwd(1)", attempt.boxes[1]);
        SetText(screen, "txtPwd(2)", attempt.boxes[2]);
        Press(screen, "OKButton");
        EXPECT_EQ(dialogs_.TakeShown(), QStringLiteral("提示！|") + attempt.shown);
    }
    EXPECT_EQ(RightsOf("Admin", "admin888"), "");
    EXPECT_NE(RightsOf("Admin", "new1"), "");
}

TEST_F(AccountsTest, SettingsKeepTheirDefaultsApart) {
    ReadOutputSettings(App(), 1);
    ASSERT_EQ(App().windCheckOption, 1);
    frmSetting first;
    EXPECT_EQ(App().windCheckOption, 0);  // never saved: looking at it is enough
    EXPECT_TRUE(Find<QRadioButton>(&first, "OptExcel")->isChecked());
    EXPECT_EQ(TextIn(first, "txtClPath"), InFolder(kMainStoreName));
    EXPECT_EQ(TextIn(first, "txtCkPath"), InFolder(kStockStoreName));

    SetText(first, "txtCompany", "凯窗门窗厂");
    SetText(first, "txtCkPath", "别处");
    Find<QRadioButton>(&first, "OptText")->click();
    Find<QRadioButton>(&first, "optEasy")->click();
    Press(first, "cmdOK");
    EXPECT_EQ(App().outputFileType, 1);
    EXPECT_EQ(App().windCheckOption, 1);

    frmSetting second;
    EXPECT_EQ(TextIn(second, "txtCompany"), "凯窗门窗厂");
    EXPECT_EQ(TextIn(second, "txtCkPath"), "别处");
    EXPECT_TRUE(Find<QRadioButton>(&second, "optEasy")->isChecked());
    SetText(second, "txtCompany", "不要");
    Press(second, "cmdCancel");
    EXPECT_EQ(settings_.Read(kSettingsApplication, kSectionMain, "DW", ""), "凯窗门窗厂");
}

}  // namespace
}  // namespace kalvane::test
