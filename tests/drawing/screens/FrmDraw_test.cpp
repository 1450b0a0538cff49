#include "drawing/screens/FrmDraw.h"

#include "drawing/screens/draw_kit.h"
#include "platform/files.h"

namespace kalvane::test {
namespace {

class FrmDrawTest : public DrawScreenTest {
  protected:
    void SizeCanvas(QSize size) {
        screen_->resize(screen_->size() + size - pic_->size());
        QCoreApplication::processEvents();
        ASSERT_EQ(pic_->size(), size);
    }
    void Wheel(QPoint at, int notches) {
        QWheelEvent event(at, pic_->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(pic_, &event);
    }
    void Drop(const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(screen_.get(), &enter);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(screen_.get(), &event);
    }
    QString Panel(const char* name) const { return Find<QLabel>(screen_.get(), name)->text(); }
    bool IsDown(const char* button) const { return Find<QPushButton>(screen_.get(), button)->isChecked(); }
};

/// Grid points: columns 8, 19, 40 are at 950, 2255, 4748; rows 16, 32, 47 at 1984, 3968, 5827.
TEST_F(FrmDrawTest, GesturesMakeTheSameItemsAtEverySizeAndZoom) {
    struct {
        const char* button;
        std::vector<QPoint> cells;
        const char* items;
    } const cases[] = {
        {"Cmdline", {{8, 16}, {19, 47}, {40, 32}}, "Line 950,1984 2255,5827; Line 2255,5827 4748,3968"},
        {"CmdRec", {{40, 47}, {8, 16}}, "Rec 4748,5827 950,1984"},
        {"CmdDir", {{8, 32}, {40, 32}}, "Dir 950,3968 4748,3968"},
        {"CmdDim", {{8, 32}, {40, 32}, {19, 16}}, "Dim 950,3968 4748,3968 2255,1984"},
        {"CmdArc", {{8, 32}, {19, 16}, {40, 32}}, "Arc 950,3968 2255,1984 4748,3968"},
    };
    struct {
        QSize size;
        int notches;  // of the wheel, in the middle of what is drawn
    } const views[] = {{{634, 530}, 0}, {{1000, 560}, 0}, {{560, 700}, 0}, {{800, 600}, 3}, {{700, 650}, -4}};
    for (const auto& view : views) {
        SizeCanvas(view.size);
        pic_->ResetView();
        // The frame's corners are in view, with a pixel of their own.
        const QRectF inside(QPointF(0, 0), QPointF(pic_->width() - 0.9, pic_->height() - 0.9));
        EXPECT_TRUE(inside.contains(pic_->ToWidget({0, 0})) && inside.contains(pic_->ToWidget({9495, 7935})));
        Wheel(InCell({22, 33}), view.notches);
        for (const auto& c : cases) {
            SCOPED_TRACE(std::string(c.button) + " " + std::to_string(view.size.width()));
            Press(c.button);
            EXPECT_TRUE(IsDown(c.button));
            for (const QPoint cell : c.cells) {
                QTest::mouseMove(pic_, InCell(cell));
                Click(cell);
            }
            Click({0, 0}, Qt::RightButton);
            EXPECT_FALSE(IsDown(c.button));
            EXPECT_EQ(Items(), c.items);
            Press("CmdRefresh");
        }
    }
    // In its own size the frame has 15 units a pixel: 150 and 263 lie in cell (18, 31) at 2136.375, 3843.516.
    SizeCanvas({634, 530});
    pic_->ResetView();
    QTest::mouseMove(pic_, {150, 263});
    EXPECT_EQ(Panel("SBAR(2)"), " 2136, 3844");
    EXPECT_EQ(Find<QWidget>(pic_, "Line1")->geometry(), QRect(142, 236, 1, 41));  // 300 units each way
    EXPECT_EQ(Find<QWidget>(pic_, "Line2")->geometry(), QRect(122, 256, 41, 1));
}

TEST_F(FrmDrawTest, TheViewIsZoomedAroundThePointerAndMovedWithoutTouchingTheTool) {
    SizeCanvas({634, 530});
    Press("Cmdline");
    Click({8, 16});
    const QPoint pointer = InCell({40, 32});
    const Point under = pic_->ToFrame(pointer);
    const auto expectUnderAt = [&](QPoint at) {  // to the pixel
        EXPECT_LE((pic_->ToWidget(under) - at).manhattanLength(), 1) << at.x() << "," << at.y();
    };
    const double cell = InCell({44, 32}).x() - pointer.x();
    Wheel(pointer, 4);
    expectUnderAt(pointer);
    EXPECT_NEAR(InCell({44, 32}).x() - InCell({40, 32}).x(), cell * 2.44, 2);  // 1.25 to the fourth
    QTest::mousePress(pic_, Qt::MiddleButton, {}, pointer);
    QTest::mouseMove(pic_, pointer + QPoint(30, -20));
    QTest::mouseRelease(pic_, Qt::MiddleButton, {}, pointer + QPoint(30, -20));
    expectUnderAt(pointer + QPoint(30, -20));
    Click({40, 32});
    EXPECT_EQ(Items(), "Line 950,1984 4748,3968");
    QTest::mouseDClick(pic_, Qt::MiddleButton, {}, pointer);
    EXPECT_EQ(pic_->ToWidget({0, 0}), QPointF(0, 0));
}

TEST_F(FrmDrawTest, KeysReachTheCommandLineFromTheCanvas) {
    Click({0, 0});  // idle: nothing but the focus
    Type("r");
    EXPECT_EQ(command_->text(), "r");
    Type(" ");
    EXPECT_TRUE(IsDown("CmdRec"));
    EXPECT_EQ(Panel("SBAR(1)"), "请输入第一角点");
    command_->setText("１６，0");  // as an input method types it
    QTest::keyClick(command_, Qt::Key_Return);
    Type("@-16,16 L 1,1 x");
    QTest::keyClick(command_, Qt::Key_Escape);
    EXPECT_FALSE(IsDown("Cmdline"));
    EXPECT_EQ(command_->text(), QString());
    Click({5, 5});
    Type("a");
    QTest::keyClick(command_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Items(), "");
    QTest::keyClick(pic_, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Items(), "Rec 1899,0 0,1983.75");
    Click({5, 5});
    QTest::keyClick(pic_, Qt::Key_Escape);
    EXPECT_TRUE(screen_->isVisible());
    Type("q ");
    EXPECT_FALSE(screen_->isVisible());
}

TEST_F(FrmDrawTest, FilesAreOpenedSavedAndDropped) {
    const QString file = InFolder("a.MC");
    Type("r 16,0 0,16 ");
    dialogs_.files = {QString(), file, file, file, InFolder("none.MC")};
    dialogs_.answers = {false, true};
    for (int i = 0; i < 2; ++i) Press("CmdSave");
    const std::string saved = ReadFile(folder_ / "a.MC");
    EXPECT_EQ(saved, "Rec\r\n 1899 \r\n 0 \r\n 0 \r\n 1983.75 \r\n");
    Type("l 0,0 1,1 esc ");
    Press("CmdSave");
    EXPECT_EQ(ReadFile(folder_ / "a.MC"), saved) << "not to be replaced";
    Press("CmdSave");
    EXPECT_NE(ReadFile(folder_ / "a.MC"), saved);
    const QString question = "保存文件|文件已存在是否覆盖？";
    EXPECT_EQ(dialogs_.TakeShown(), question + "\n" + question);
    Press("CmdOpen");
    EXPECT_TRUE(Panel("SBAR(1)").contains("none.MC")) << "told in the status bar";
    EXPECT_TRUE(dialogs_.TakeShown().isEmpty());

    WriteFileAtomically(folder_ / "a.MC", saved);
    WriteFileAtomically(folder_ / "b.dxf", "2\nENTITIES\n0\nLINE\n10\n1\n20\n2\n11\n3\n21\n4\n0\nCIRCLE\n");
    Drop(InFolder("b.dxf"));
    EXPECT_EQ(Items(), "Line 1,2 3,4");
    EXPECT_TRUE(Panel("SBAR(1)").contains("CIRCLE")) << Panel("SBAR(1)").toStdString();
    Drop(InFolder("b.txt"));
    Drop(file);
    EXPECT_EQ(Items(), "Rec 1899,0 0,1983.75");
    Press("CmdUndo");
    EXPECT_EQ(Items(), "Line 1,2 3,4");
}

TEST_F(FrmDrawTest, TheLibraryDialogsCheckDeleteAndHandBack) {
    const int before = std::stoi(Rows("Select count(*) from 图"));
    ModalScript()
        .On("frmOpenPicture",
            [&](QDialog& open) {
                Deselect(open, "lvw");
                test::Press(open, "OKButton");
                test::Press(open, "CmdDel");
                auto* lvw = Find<ReportList>(&open, "lvw");
                lvw->SelectRow(1);
                const QString name = lvw->Text(1, 0);
                dialogs_.answers = {false, true};
                test::Press(open, "CmdDel");
                EXPECT_EQ(lvw->RowCount(), before);
                test::Press(open, "CmdDel");
                EXPECT_EQ(lvw->RowCount(), before - 1);
                const QString none = "提示|无选取图形！\n";
                const QString question = QStringLiteral("提示|确定要删除吗？(%1)").arg(name);
                EXPECT_EQ(dialogs_.TakeShown(), none + none + question + "\n" + question);
            })
        .Run([this] { Press("CmdOpenEx"); });
    EXPECT_EQ(screen_->windowTitle(), "绘图") << "cancelled";

    Type("r 0,0 16,16 ");
    ModalScript()
        .On("frmSavePicEX",
            [&](QDialog& save) {
                const std::string next = TextIn(save, "Text2").toStdString();
                SetText(save, "Text1", "甲");
                SetText(save, "Text2", " 1 ");
                test::Press(save, "OKButton");
                SetText(save, "Text2", next.c_str());
                SetText(save, "Text1", " ");
                test::Press(save, "OKButton");
            })
        .Run([this] { Press("CmdSaveEx"); });
    EXPECT_EQ(dialogs_.TakeShown(), "提示|该编号已存在，请重新输入新的编号。\n提示|图形名称不能为空！");
    EXPECT_EQ(SharedFieldSlots()[0] + SharedFieldSlots()[1], "") << "cancelled";
    EXPECT_EQ(std::stoi(Rows("Select count(*) from 图")), before - 1);
}

}  // namespace
}  // namespace kalvane::test
