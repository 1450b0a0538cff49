#include "optimise/screens/frmOption.h"

#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

using frmOptionTest = ScreenTest;

TEST_F(frmOptionTest, ChecksStoresAndShowsAgain) {
    {
        frmOption screen(nullptr);
        screen.show();
        EXPECT_EQ(TextIn(screen, "TxtMaxCount"), "50000");
        SetText(screen, "TxtCLC", "６０００");  // as an input method types it
        SetText(screen, "TxtCount", "50001");
        Press(screen, "OKButton");
        EXPECT_EQ(dialogs_.TakeShown(), "提示|数据值不能大于50000");
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(Find<QLineEdit>(&screen, "TxtCount")->selectedText(), "50001");
        EXPECT_EQ(settings_.Read("Tesmar", "YHOPTION", "CLC", "-"), "-");

        SetText(screen, "TxtCKK", "3.9");
        SetText(screen, "TxtCount", "50000");
        SetText(screen, "txtCtlNodes", "many");  // not tested: no number is 0
        Press(screen, "OKButton");
        EXPECT_FALSE(screen.isVisible());
    }
    std::string stored;
    for (const char* key : {"CLC", "LTC", "CKK", "COUNT", "YHBL", "SAVEPATH", "NODES"}) {
        stored += settings_.Read("Tesmar", "YHOPTION", key, "-") + " ";
    }
    EXPECT_EQ(stored, "6000 0 3 50000 1  0 ");
    frmOption again(nullptr);
    SetText(again, "TxtCKK", "4");
    Press(again, "CancelButton");
    EXPECT_EQ(App().optimise.CKK, 3);
}

}  // namespace
}  // namespace kalvane::test
