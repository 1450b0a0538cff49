// The road to a backup and back, through the screens.

#include "app/screens/MDIMain.h"
#include "backup/screens/folder_tree.h"
#include "backup/screens/frmSaveFile.h"
#include "backup/screens/frmTools.h"
#include "support/screens/screen_kit.h"
#include "ui/screen_memory.h"

namespace kalvane::test {
namespace {

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
    EXPECT_EQ(dialogs_.TakeShown(), "提示|文件名不能为空！\n提示|路径不能为空！\n提示|已备份完毕！");
    EXPECT_EQ(Remembered("backup.folder", {}), InFolder("盘"));

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
                EXPECT_EQ(dialogs_.TakeShown(), "提示|数据恢复完毕！");
                dialogs_.answers = {true};
                Press(screen, "CmdRestore");  // a store, but not this one: the copy is put back
                EXPECT_EQ(Projects(), before);
                EXPECT_EQ(dialogs_.shown.size(), 2);
                EXPECT_FALSE(Find<QProgressBar>(&screen, "ProgressBar")->isVisible());
            })
        .Run([&] { Find<QAction>(&frame, "x6")->trigger(); });
    EXPECT_EQ(dialogs_.filters.back(), "打开数据库(*.MBK)|*.MBK");
}

TEST_F(BackupFlow, TheDriveMovesTheFolderAndAFailureKeepsTheScreen) {
    settings_.Save("Tesmar", "KALVANE", "DATABASE", "/usr/share/cl.mdb");
    frmSaveFile screen(nullptr);
    screen.show();
    auto* folder = Find<FolderTree>(&screen, "Dir1");
    auto* drive = Find<QComboBox>(&screen, "Drive1");
    EXPECT_EQ(folder->Folder(), "/usr/share");
    drive->setCurrentIndex(drive->findData(QDir::rootPath()));
    Q_EMIT drive->activated(drive->currentIndex());
    EXPECT_EQ(folder->Folder(), QDir::rootPath());
    folder->SetFolder(QFileInfo(InFolder("")).absolutePath());
    SetText(screen, "TxtFileName", kMainStoreName);
    Press(screen, "OKButton");
    EXPECT_EQ(dialogs_.shown.size(), 1);
    EXPECT_TRUE(screen.isVisible());
}

}  // namespace
}  // namespace kalvane::test
