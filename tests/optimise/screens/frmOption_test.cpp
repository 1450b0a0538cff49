#include "optimise/screens/frmOption.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "support/screens/screen_kit.h"

namespace kalvane {
namespace {

using test::Find;

class frmOptionTest : public test::ScreenTest {
  protected:
    /// What is stored under the section's seven keys.
    std::string Stored() const {
        std::string all;
        for (const char* key : {"CLC", "LTC", "CKK", "COUNT", "YHBL", "SAVEPATH", "NODES"}) {
            all += settings_.Read("Tesmar", "YHOPTION", key, "-") + " ";
        }
        return all;
    }
    static void Set(const QWidget& screen, const char* box, const char* text) {
        Find<QLineEdit>(&screen, box)->setText(QString::fromUtf8(text));
    }
};

TEST_F(frmOptionTest, ChecksStoresAndShowsAgain) {
    {
        frmOption screen(nullptr);
        screen.show();
        EXPECT_EQ(Find<QLineEdit>(&screen, "TxtMaxCount")->text(), QStringLiteral("50000"));
        EXPECT_EQ(Find<QLineEdit>(&screen, "TxtYHBL")->text(), QStringLiteral("1"));
        EXPECT_EQ(Find<QLineEdit>(&screen, "txtCtlNodes")->text(), QStringLiteral("20"));
        auto* ok = Find<QPushButton>(&screen, "OKButton");

        Set(screen, "TxtCLC", "6000mm");
        ok->click();
        EXPECT_EQ(dialogs_.TakeShown(), QStringList(QStringLiteral("提示|数据不合法")));
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(Find<QLineEdit>(&screen, "TxtCLC")->selectedText(), QStringLiteral("6000mm"));

        Set(screen, "TxtCLC", "６０００");  // as an input method types it
        Set(screen, "TxtCount", "50001");
        ok->click();
        EXPECT_EQ(dialogs_.TakeShown(), QStringList(QStringLiteral("提示|数据值不能大于50000")));
        EXPECT_EQ(Find<QLineEdit>(&screen, "TxtCount")->selectedText(), QStringLiteral("50001"));
        EXPECT_EQ(Stored(), "- - - - - - - ");

        Set(screen, "TxtLTC", "2.5");  // to the even neighbour
        Set(screen, "TxtCKK", "3.9");  // down
        Set(screen, "TxtCount", "50000");
        Set(screen, "TxtYHBL", "0.95");
        Set(screen, "txtCtlNodes", "many");  // not tested: no number is 0
        ok->click();
        EXPECT_FALSE(screen.isVisible());
    }
    EXPECT_EQ(Stored(), "6000 2 3 50000 0.95  0 ");
    EXPECT_EQ(App().optimise.CLC, 6000);
    frmOption again(nullptr);
    EXPECT_EQ(Find<QLineEdit>(&again, "TxtCKK")->text(), QStringLiteral("3"));
    Set(again, "TxtCKK", "4");
    Find<QPushButton>(&again, "CancelButton")->click();
    EXPECT_EQ(App().optimise.CKK, 3);
    EXPECT_TRUE(dialogs_.shown.isEmpty());
}

}  // namespace
}  // namespace kalvane
