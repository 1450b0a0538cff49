// From an empty desk to a drawing in the library, and through all drawings of the starter library.

#include "app/screens/MDIMain.h"
#include "drawing/drawing_library.h"
#include "drawing/mc_file.h"
#include "drawing/screens/draw_kit.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "ui/picture_box.h"

namespace kalvane::test {
namespace {

class DrawingFlow : public DrawScreenTest {
  protected:
    void Draw(const char* tool, std::initializer_list<QPoint> cells) {
        Press(tool);
        for (const QPoint cell : cells) Click(cell);
    }
    void Write(QPoint cell, const char* text) {
        ModalScript()
            .On("frmInput",
                [text](QDialog& input) {
                    QTest::keyClicks(Find<QLineEdit>(&input, "Text1"), QLatin1String(text));
                    QTest::keyClick(Find<QLineEdit>(&input, "Text1"), Qt::Key_Return);
                })
            .Run([&] { Draw("CmdString", {cell}); });
    }
    void OpenRow(int row) {
        ModalScript()
            .On("frmOpenPicture",
                [row](QDialog& open) {
                    Find<ReportList>(&open, "lvw")->SelectRow(row);
                    test::Press(open, "OKButton");
                })
            .Run([this] { Press("CmdOpenEx"); });
    }
};

TEST_F(DrawingFlow, ATwoLeafSlidingWindowIsDrawnInUnderFortyActions) {
    const std::string number = NextDrawingNumber(App().Main());
    Draw("CmdRec", {{16, 12}, {64, 52}});  // frame
    Draw("CmdRec", {{18, 14}, {41, 50}});  // left leaf
    Draw("CmdRec", {{39, 14}, {62, 50}});
    Draw("CmdDir", {{24, 32}, {34, 32}});  // both leaves slide
    Draw("CmdDir", {{56, 32}, {46, 32}});
    Draw("CmdDim", {{16, 12}, {64, 12}, {64, 8}});
    Draw("CmdDim", {{16, 12}, {16, 52}, {12, 52}});
    Write({40, 6}, "B");
    Write({9, 32}, "H");
    ModalScript()
        .On("frmSavePicEX",
            [this](QDialog& save) {
                actions_ += 2;  // the name and OK; the number stands there
                SetText(save, "Text1", "两扇推拉窗");
                test::Press(save, "OKButton");
            })
        .Run([this] { Press("CmdSaveEx"); });
    EXPECT_LT(actions_, 40);
    EXPECT_TRUE(dialogs_.shown.isEmpty());
    EXPECT_EQ(screen_->windowTitle(), "文件->两扇推拉窗");
    EXPECT_EQ(SharedFieldSlots()[0] + "|" + SharedFieldSlots()[1], number + "|两扇推拉窗");
    EXPECT_EQ(Rows("Select 图名 from 图 where 编号=" + number), "两扇推拉窗");
    // Columns 16, 64 and 12 are at 1899, 7596 and 1424 units, rows 12, 52 and 8 at 1488, 6447 and 992.
    EXPECT_EQ(Rows("Select X1,Y1,X2,Y2,X3,Y3 from Dim where Bn=" + number),
              "1899|1488|7596|1488|7596|992\n1899|1488|1899|6447|1424|6447");
    EXPECT_EQ(Rows("Select X1,Y1,Chars from Strings where Bn=" + number), "4748|744|B\n1068|3968|H");

    ModalScript()
        .On("frmOpenPicture",
            [&](QDialog& open) {
                auto* lvw = Find<ReportList>(&open, "lvw");
                const int last = lvw->RowCount() - 1;
                EXPECT_EQ(lvw->Text(last, 0), "两扇推拉窗");
                auto* preview = Find<PictureBox>(&open, "PicMC");
                const QImage empty = preview->grab().toImage();
                lvw->SelectRow(last);
                EXPECT_EQ(TextIn(open, "txtCBN").toStdString(), number);
                EXPECT_NE(preview->grab().toImage(), empty);
            })
        .Run([this] { Press("CmdOpenEx"); });

    // Saved again without a question, under its number.
    Press("CmdUndo");
    Press("CmdSaveEx");
    EXPECT_EQ(Rows("Select Chars from Strings where Bn=" + number), "B");
}

TEST_F(DrawingFlow, EveryDrawingOfTheLibraryComesThroughTheDeskUnchanged) {
    const std::vector<DrawingEntry> drawings = ListDrawings(App().Main());
    ASSERT_GE(drawings.size(), 24U);
    dialogs_.answers = std::deque<bool>(drawings.size(), true);
    for (int row = 0; row < static_cast<int>(drawings.size()); ++row) {
        SCOPED_TRACE(drawings[static_cast<std::size_t>(row)].name);
        Press("CmdRefresh");
        OpenRow(row);
        const CPictire& picture = screen_->Desk().Picture();
        const std::string text = McText(picture);
        const std::string items = Items();
        EXPECT_FALSE(items.empty());
        Draw("CmdRec", {{1, 1}, {9, 9}});  // edited and taken back
        EXPECT_NE(Items(), items);
        Press("CmdUndo");
        Press("CmdSaveEx");
        Press("CmdRefresh");
        OpenRow(row);
        EXPECT_EQ(Items(), items);

        const QString file = InFolder("drawing.MC");
        dialogs_.files = {file, file};
        Press("CmdSave");
        EXPECT_EQ(FromGbk(ReadFile(folder_ / "drawing.MC")), text);
        if (!picture.Arcs().Empty()) continue;  // not in the file, and kept by the desk
        Press("CmdOpen");
        EXPECT_EQ(Items(), items);
    }
    EXPECT_TRUE(std::none_of(dialogs_.shown.begin(), dialogs_.shown.end(),
                             [](const QString& text) { return !text.startsWith("保存文件|"); }));
    EXPECT_EQ(ListDrawings(App().Main()).size(), drawings.size());
}

TEST_F(DrawingFlow, TheMainScreenOpensOneDeskAndEndsWithItsDrawingKept) {
    EXPECT_FALSE(Find<QPushButton>(screen_.get(), "CmdRecover")->isVisible());
    screen_.reset();
    {
        MDIMain frame;
        frame.Load();
        frame.show();
        for (int i = 0; i < 2; ++i) Find<QAction>(&frame, "mnuDrawPicture")->trigger();
        const QList<FrmDraw*> desks = frame.findChildren<FrmDraw*>();
        ASSERT_EQ(desks.size(), 1);
        QTest::keyClicks(Find<QLineEdit>(desks[0], "TxtCommand"), "r 0,0 16,16 ");
        frame.close();
    }
    Reopen();
    auto* recover = Find<QPushButton>(screen_.get(), "CmdRecover");
    EXPECT_TRUE(recover->isVisible());
    EXPECT_EQ(Items(), "");
    recover->click();
    EXPECT_EQ(Items(), "Rec 0,0 1899,1983.75");
    EXPECT_FALSE(recover->isVisible());
    EXPECT_TRUE(dialogs_.shown.isEmpty());
}

}  // namespace
}  // namespace kalvane::test
