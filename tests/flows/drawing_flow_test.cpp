// From an empty desk to a drawing in the library, and through all drawings of the starter library.

#include "app/screens/MDIMain.h"
#include "drawing/drawing_library.h"
#include "drawing/mc_file.h"
#include "drawing/recorders.h"
#include "drawing/screens/FrmDraw.h"
#include "drawing/screens/drawing_canvas.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"
#include "ui/picture_box.h"
#include "ui/report_list.h"

namespace kalvane::test {

class DrawingFlow : public ScreenTest {
  protected:
    void Open() {
        screen_ = std::make_unique<FrmDraw>(nullptr);
        screen_->show();
        pic_ = Find<DrawingCanvas>(screen_.get(), "Pic");
    }
    void TearDown() override {
        screen_.reset();
        ScreenTest::TearDown();
    }

    // Each of these is one action of the operator.
    void Press(const char* button) {
        ++actions_;
        test::Press(*screen_, button);
    }
    void Click(int column, int row) {
        ++actions_;
        QTest::mouseClick(pic_, Qt::LeftButton, {}, At(column, row));
    }
    void ClickAndType(int column, int row, const char* text) {
        ++actions_;
        ModalScript()
            .On("frmInput",
                [text](QDialog& input) {
                    QTest::keyClicks(Find<QLineEdit>(&input, "Text1"), QLatin1String(text));
                    QTest::keyClick(Find<QLineEdit>(&input, "Text1"), Qt::Key_Return);
                })
            .Run([&] { Click(column, row); });
    }

    QPoint At(int column, int row) const {
        return pic_
            ->ToWidget({(static_cast<float>(column) + 0.5F) * 118.6875F,
                        (static_cast<float>(row) + 0.5F) * 123.984375F})
            .toPoint();
    }
    void OpenRow(int row) {
        ModalScript()
            .On("frmOpenPicture",
                [row](QDialog& open) {
                    Find<ReportList>(&open, "lvw")->SelectRow(row);
                    test::Press(open, "OKButton");
                })
            .Run([this] { test::Press(*screen_, "CmdOpenEx"); });
    }
    const CPictire& Picture() const { return screen_->Desk().Picture(); }

    std::unique_ptr<FrmDraw> screen_;
    DrawingCanvas* pic_ = nullptr;
    int actions_ = 0;
};

TEST_F(DrawingFlow, ATwoLeafSlidingWindowIsDrawnInUnderFortyActions) {
    Open();
    const std::string number = NextDrawingNumber(App().Main());
    for (const auto& [from, to] : {std::pair(QPoint(16, 12), QPoint(64, 52)),  // frame
                                   std::pair(QPoint(18, 14), QPoint(41, 50)),  // left leaf
                                   std::pair(QPoint(39, 14), QPoint(62, 50))}) {
        Press("CmdRec");
        Click(from.x(), from.y());
        Click(to.x(), to.y());
    }
    Press("CmdDir");  // both leaves slide
    Click(24, 32);
    Click(34, 32);
    Press("CmdDir");
    Click(56, 32);
    Click(46, 32);
    Press("CmdDim");
    Click(16, 12);
    Click(64, 12);
    Click(64, 8);
    Press("CmdDim");
    Click(16, 12);
    Click(16, 52);
    Click(12, 52);
    Press("CmdString");
    ClickAndType(40, 6, "B");
    Press("CmdString");
    ClickAndType(9, 32, "H");
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
    EXPECT_EQ(screen_->windowTitle(), QStringLiteral("文件->两扇推拉窗"));
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
                EXPECT_EQ(lvw->Text(last, 0), QStringLiteral("两扇推拉窗"));
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
    Open();
    const std::vector<DrawingEntry> drawings = ListDrawings(App().Main());
    ASSERT_GE(drawings.size(), 24U);
    dialogs_.answers = std::deque<bool>(drawings.size(), true);
    for (int row = 0; row < static_cast<int>(drawings.size()); ++row) {
        const DrawingEntry& drawing = drawings[static_cast<std::size_t>(row)];
        SCOPED_TRACE(drawing.name);
        test::Press(*screen_, "CmdRefresh");
        OpenRow(row);
        const std::string text = McText(Picture());
        const std::string items = Describe(Picture());
        EXPECT_FALSE(items.empty());
        test::Press(*screen_, "CmdRec");  // edited and taken back
        Click(1, 1);
        Click(9, 9);
        EXPECT_NE(Describe(Picture()), items);
        test::Press(*screen_, "CmdUndo");
        test::Press(*screen_, "CmdSaveEx");
        test::Press(*screen_, "CmdRefresh");
        OpenRow(row);
        EXPECT_EQ(Describe(Picture()), items);

        const QString file = InFolder("drawing.MC");
        dialogs_.files = {file, file};
        test::Press(*screen_, "CmdSave");
        EXPECT_EQ(FromGbk(ReadFile(folder_ / "drawing.MC")), text);
        if (!Picture().Arcs().Empty()) continue;  // not in the file, and kept by the desk
        test::Press(*screen_, "CmdOpen");
        EXPECT_EQ(Describe(Picture()), items);
    }
    EXPECT_TRUE(std::none_of(dialogs_.shown.begin(), dialogs_.shown.end(), [](const QString& text) {
        return !text.startsWith(QStringLiteral("保存文件|"));
    }));
    EXPECT_EQ(ListDrawings(App().Main()).size(), drawings.size());
}

TEST_F(DrawingFlow, TheMainScreenOpensOneDeskAndEndsWithItsDrawingKept) {
    {
        MDIMain frame;
        frame.Load();
        frame.show();
        for (int i = 0; i < 2; ++i) Find<QAction>(&frame, "mnuDrawPicture")->trigger();
        const QList<FrmDraw*> desks = frame.findChildren<FrmDraw*>();
        ASSERT_EQ(desks.size(), 1);
        auto* command = Find<QLineEdit>(desks[0], "TxtCommand");
        QTest::keyClicks(command, QStringLiteral("r 0,0 16,16 "));
        frame.close();
    }
    Open();
    test::Press(*screen_, "CmdRecover");
    EXPECT_EQ(Describe(Picture()), "Rec 0,0 1899,1983.75");
}

}  // namespace kalvane::test
