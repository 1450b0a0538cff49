#include "optimise/screens/frmOption.h"

#include "support/screens/screen_kit.h"

namespace kalvane::test {

using frmOptionTest = ScreenTest;

TEST_F(frmOptionTest, ChecksStoresAndShowsAgain) {
    {
        frmOption screen(nullptr);
        screen.show();
        EXPECT_EQ(TextIn(screen, "TxtMaxCount"), QStringLiteral("50000"));
        SetText(screen, "TxtCLC", "６０００");  // as an input method types it
        SetText(screen, "TxtCount", "50001");
        Press(screen, "OKButton");
        EXPECT_EQ(dialogs_.TakeShown(), QStringList(QStringLiteral("提示|数据值不能大于50000")));
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(Find<QLineEdit>(&screen, "TxtCount")->selectedText(), QStringLiteral("50001"));
        EXPECT_EQ(settings_.Read("Tesmar", "YHOPTION", "CLC", "-"), "-");

        SetText(screen, "TxtLTC", "2.5");  // to the even neighbour
        SetText(screen, "TxtCKK", "3.9");  // down
        SetText(screen, "TxtCount", "50000");
        SetText(screen, "TxtYHBL", "0.95");
        SetText(screen, "txtCtlNodes", "many");  // not tested: no number is 0
        Press(screen, "OKButton");
        EXPECT_FALSE(screen.isVisible());
    }
    std::string stored;
    for (const char* key : {"CLC", "LTC", "CKK", "COUNT", "YHBL", "SAVEPATH", "NODES"}) {
        stored += settings_.Read("Tesmar", "YHOPTION", key, "-") + " ";
    }
    EXPECT_EQ(stored, "6000 2 3 50000 0.95  0 ");
    frmOption again(nullptr);
    EXPECT_EQ(TextIn(again, "TxtCKK"), QStringLiteral("3"));
    SetText(again, "TxtCKK", "4");
    Press(again, "CancelButton");
    EXPECT_EQ(App().optimise.CKK, 3);
    EXPECT_TRUE(dialogs_.shown.isEmpty());
}

}  // namespace kalvane::test
