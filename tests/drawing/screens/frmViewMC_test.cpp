#include "drawing/screens/frmViewMC.h"

#include "drawing/mcpicture.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

class frmViewMCTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        std::filesystem::create_directories(folder_ / "图/推拉");
        // A line through the frame's middle, from edge to edge.
        WriteFileAtomically(folder_ / "图/推拉/窗.mc", "Line\r\n0\r\n3967.5\r\n9495\r\n3967.5\r\n");
        WriteFileAtomically(folder_ / "图/推拉/坏.MC", "Line\r\nx\r\n");
        WriteFileAtomically(folder_ / "图/推拉/说明.txt", "");
        settings_.Save(kSettingsApplication, kSectionMain, "PICTUREPATH", (folder_ / "图").string());
    }

    static bool ShowsALine(const QWidget& form) {
        const QImage image = Find<QWidget>(&form, "PicMC")->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(image.width() / 2, y) == QColor(Qt::black)) return true;
        }
        return false;
    }
};

TEST_F(frmViewMCTest, WalksTheFoldersShowsADrawingAndHandsItsPathBack) {
    frmViewMC form;
    form.show();
    auto* folders = Find<QListWidget>(&form, "Dir1");
    auto* files = Find<QListWidget>(&form, "File1");
    const auto select = [&](const char* name) {
        files->findItems(QString::fromUtf8(name), Qt::MatchExactly).front()->setSelected(true);
    };
    ASSERT_EQ(folders->count(), 2);
    EXPECT_EQ(folders->item(0)->text() + folders->item(1)->text(), "..推拉");
    Press(form, "OKButton");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|无选取图形文件");

    folders->setFocus();
    folders->setCurrentRow(1);
    QTest::keyClick(folders, Qt::Key_Return);
    EXPECT_EQ(files->count(), 3);
    select("说明.txt");
    Press(form, "OKButton");
    EXPECT_EQ(dialogs_.TakeShown(), "提示|无效的图型文件");

    select("窗.mc");
    EXPECT_TRUE(ShowsALine(form));
    select("坏.MC");
    EXPECT_FALSE(ShowsALine(form));
    EXPECT_EQ(dialogs_.TakeShown(), "|图形文件第 2 行的“x”不是数字。");
    select("窗.mc");
    Press(form, "OKButton");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.ResultPath(), InFolder("图/推拉/窗.mc"));
}

}  // namespace
}  // namespace kalvane::test
