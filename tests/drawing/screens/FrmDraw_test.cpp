#include "drawing/screens/FrmDraw.h"

#include "drawing/recorders.h"
#include "drawing/screens/drawing_canvas.h"
#include "platform/files.h"
#include "support/screens/screen_kit.h"
#include "ui/report_list.h"

namespace kalvane::test {

class FrmDrawTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        Reopen();
    }
    void TearDown() override {
        screen_.reset();
        ScreenTest::TearDown();
    }

    /// Ends the desk without closing it, as a kill would, and opens it again.
    void Reopen() {
        screen_.reset();
        screen_ = std::make_unique<FrmDraw>(nullptr);
        screen_->show();
        screen_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(screen_.get()));
        pic_ = Find<DrawingCanvas>(screen_.get(), "Pic");
        command_ = Find<QLineEdit>(screen_.get(), "TxtCommand");
    }

    void SizeCanvas(QSize size) {
        screen_->resize(screen_->size() + size - pic_->size());
        QCoreApplication::processEvents();
        ASSERT_EQ(pic_->size(), size);
    }

    /// The position in the middle of a cell of the grid.
    QPoint InCell(int column, int row) const {
        return pic_
            ->ToWidget({(static_cast<float>(column) + 0.5F) * 118.6875F,
                        (static_cast<float>(row) + 0.5F) * 123.984375F})
            .toPoint();
    }
    void Click(QPoint cell, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(pic_, button, {}, InCell(cell.x(), cell.y()));
    }
    void Wheel(QPoint at, int notches) {
        QWheelEvent event(at, pic_->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(pic_, &event);
    }
    void TypeText(const char* text) {
        ModalScript script;
        script.On("frmInput", [text](QDialog& input) {
            QTest::keyClicks(Find<QLineEdit>(&input, "Text1"), QString::fromUtf8(text));
            Press(input, "OKButton");
        });
        script.Run([this] { Click({8, 32}); });
    }
    /// Key by key, to whatever has the focus of the screen by then.
    void Type(const char* text) {
        for (; *text != '\0'; ++text) QTest::keyClick(screen_->focusWidget(), *text);
    }
    void Drop(const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(screen_.get(), &enter);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(screen_.get(), &event);
    }

    std::string Items() const { return Describe(screen_->Desk().Picture()); }
    QString Panel(int number) const {
        return Find<QLabel>(screen_.get(), number == 1 ? "SBAR(1)" : "SBAR(2)")->text();
    }
    bool IsDown(const char* button) const { return Find<QPushButton>(screen_.get(), button)->isChecked(); }

    std::unique_ptr<FrmDraw> screen_;
    DrawingCanvas* pic_ = nullptr;
    QLineEdit* command_ = nullptr;
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
        Wheel(InCell(22, 33), view.notches);
        for (const auto& c : cases) {
            SCOPED_TRACE(std::string(c.button) + " " + std::to_string(view.size.width()));
            Press(*screen_, c.button);
            EXPECT_TRUE(IsDown(c.button));
            for (const QPoint cell : c.cells) {
                QTest::mouseMove(pic_, InCell(cell.x(), cell.y()));
                Click(cell);
            }
            Click({0, 0}, Qt::RightButton);
            EXPECT_FALSE(IsDown(c.button));
            EXPECT_EQ(Items(), c.items);
            Press(*screen_, "CmdRefresh");
        }
    }
    // In its own size the frame has 15 units a pixel: 150 and 263 lie in cell (18, 31) at 2136.375, 3843.516.
    SizeCanvas({634, 530});
    pic_->ResetView();
    QTest::mouseMove(pic_, {150, 263});
    EXPECT_EQ(Panel(2), QStringLiteral(" 2136, 3844"));
    EXPECT_EQ(Find<QWidget>(pic_, "Line1")->geometry(), QRect(142, 236, 1, 41));  // 300 units each way
    EXPECT_EQ(Find<QWidget>(pic_, "Line2")->geometry(), QRect(122, 256, 41, 1));
}

TEST_F(FrmDrawTest, TheViewIsZoomedAroundThePointerAndMovedWithoutTouchingTheTool) {
    SizeCanvas({634, 530});
    Press(*screen_, "Cmdline");
    Click({8, 16});
    const QPoint pointer = InCell(40, 32);
    const Point under = pic_->ToFrame(pointer);
    const auto expectUnderAt = [&](QPoint at) {  // to the pixel
        EXPECT_LE((pic_->ToWidget(under) - at).manhattanLength(), 1) << at.x() << "," << at.y();
    };
    const double cell = InCell(44, 32).x() - pointer.x();
    Wheel(pointer, 4);
    expectUnderAt(pointer);
    EXPECT_NEAR(InCell(44, 32).x() - InCell(40, 32).x(), cell * 2.44, 2);  // 1.25 to the fourth
    QTest::mousePress(pic_, Qt::MiddleButton, {}, pointer);
    QTest::mouseMove(pic_, pointer + QPoint(30, -20));
    QTest::mouseRelease(pic_, Qt::MiddleButton, {}, pointer + QPoint(30, -20));
    expectUnderAt(pointer + QPoint(30, -20));
    EXPECT_EQ(screen_->Desk().Picture().GetCurDraw(), "Line");
    Click({40, 32});
    EXPECT_EQ(Items(), "Line 950,1984 4748,3968");
    QTest::mouseDClick(pic_, Qt::MiddleButton, {}, pointer);
    EXPECT_EQ(pic_->ToWidget({0, 0}), QPointF(0, 0));
}

TEST_F(FrmDrawTest, KeysReachTheCommandLineFromTheCanvas) {
    Click({0, 0});  // idle: nothing but the focus
    ASSERT_TRUE(pic_->hasFocus());
    Type("r");
    EXPECT_TRUE(command_->hasFocus());
    EXPECT_EQ(command_->text(), QStringLiteral("r"));
    Type(" ");
    EXPECT_EQ(command_->text(), QString());
    EXPECT_TRUE(IsDown("CmdRec"));
    EXPECT_EQ(Panel(1), QStringLiteral("请输入第一角点"));
    command_->setText(QStringLiteral("１６，0"));  // as an input method types it
    QTest::keyClick(command_, Qt::Key_Return);
    Type("@-16,16 ");
    EXPECT_EQ(Items(), "Rec 1899,0 0,1983.75");
    Type("L 1,1 x");
    QTest::keyClick(command_, Qt::Key_Escape);
    EXPECT_FALSE(IsDown("Cmdline"));
    EXPECT_EQ(command_->text(), QString());
    EXPECT_TRUE(screen_->isVisible());
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

TEST_F(FrmDrawTest, ARubberBandLeavesThePersistentLayerAsItWas) {
    SizeCanvas({634, 530});
    Press(*screen_, "CmdRec");
    Click({10, 10});
    Click({70, 60});
    Type("c");  // typed, not run
    const QImage before = pic_->grab().toImage();
    Press(*screen_, "Cmdline");
    Click({0, 0});
    QTest::mouseMove(pic_, InCell(40, 32));
    QTest::mouseMove(pic_, InCell(79, 63));
    EXPECT_NE(pic_->grab().toImage().pixelColor(InCell(30, 24)), QColor());
    const QImage during = pic_->grab().toImage();
    EXPECT_NE(during, before);
    Click({0, 0}, Qt::RightButton);
    Find<QWidget>(pic_, "Line1")->hide();
    Find<QWidget>(pic_, "Line2")->hide();
    const QImage after = pic_->grab().toImage();
    // All that the move painted is gone again, but for the cross-hair that stood over the first picture.
    for (int y = 300; y < 530; ++y) {
        for (int x = 0; x < 400; ++x) ASSERT_EQ(after.pixel(x, y), before.pixel(x, y)) << x << "," << y;
    }
}

TEST_F(FrmDrawTest, FilesAreOpenedSavedAndDropped) {
    const QString file = InFolder("a.MC");
    Type("r 16,0 0,16 ");
    dialogs_.files = {QString(), file, file, file};
    dialogs_.answers = {false, true};
    for (int i = 0; i < 2; ++i) Press(*screen_, "CmdSave");
    const std::string saved = ReadFile(folder_ / "a.MC");
    EXPECT_EQ(saved, "Rec\r\n 1899 \r\n 0 \r\n 0 \r\n 1983.75 \r\n");
    Type("l 0,0 1,1 esc ");
    Press(*screen_, "CmdSave");
    EXPECT_EQ(ReadFile(folder_ / "a.MC"), saved) << "not to be replaced";
    Press(*screen_, "CmdSave");
    EXPECT_NE(ReadFile(folder_ / "a.MC"), saved);
    const QString question = QStringLiteral("保存文件|文件已存在是否覆盖？");
    EXPECT_EQ(dialogs_.TakeShown(), QStringList({question, question}));
    EXPECT_EQ(dialogs_.filters[0], QStringLiteral("门窗图(*.MC)|*.Mc"));

    WriteFileAtomically(folder_ / "a.MC", saved);
    dialogs_.files = {file, InFolder("none.MC")};
    Press(*screen_, "CmdOpen");
    EXPECT_EQ(Items(), "Rec 1899,0 0,1983.75");
    Press(*screen_, "CmdOpen");
    EXPECT_EQ(Items(), "Rec 1899,0 0,1983.75");
    EXPECT_TRUE(Panel(1).contains(QStringLiteral("none.MC"))) << "told in the status bar";
    EXPECT_TRUE(dialogs_.TakeShown().isEmpty());

    Press(*screen_, "CmdString");
    TypeText("m²");  // GBK has no such character
    const std::string withText = Items();
    dialogs_.files = {file};
    dialogs_.answers = {true};
    Press(*screen_, "CmdSave");
    EXPECT_EQ(dialogs_.TakeShown().size(), 2);
    EXPECT_EQ(ReadFile(folder_ / "a.MC"), saved);
    EXPECT_EQ(Items(), withText);

    WriteFileAtomically(folder_ / "b.dxf",
                        "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n1\n20\n2\n11\n3\n21\n4\n0\nCIRCLE\n10\n5\n0\nE"
                        "NDSEC\n0\nEOF\n");
    Drop(InFolder("b.dxf"));
    EXPECT_EQ(Items(), "Line 1,2 3,4");
    EXPECT_TRUE(Panel(1).contains(QStringLiteral("CIRCLE"))) << Panel(1).toStdString();
    Drop(InFolder("b.txt"));
    Drop(file);
    EXPECT_EQ(Items(), "Rec 1899,0 0,1983.75");
    Press(*screen_, "CmdUndo");
    EXPECT_EQ(Items(), "Line 1,2 3,4");
}

TEST_F(FrmDrawTest, AnUnsavedDrawingIsOfferedInTheStatusBar) {
    EXPECT_FALSE(Find<QPushButton>(screen_.get(), "CmdRecover")->isVisible());
    Type("r 0,0 16,16 ");
    Reopen();
    auto* recover = Find<QPushButton>(screen_.get(), "CmdRecover");
    ASSERT_TRUE(recover->isVisible());
    EXPECT_EQ(recover->text(), QStringLiteral("恢复上次未保存的图"));
    EXPECT_EQ(Items(), "");
    recover->click();
    EXPECT_EQ(Items(), "Rec 0,0 1899,1983.75");
    EXPECT_FALSE(recover->isVisible());
    EXPECT_TRUE(dialogs_.shown.isEmpty());
}

TEST_F(FrmDrawTest, TheLibraryDialogsCheckDeleteAndHandBack) {
    const std::string count = "Select count(*) from 图";
    const int before = std::stoi(Rows(count));
    ModalScript()
        .On("frmOpenPicture",
            [&](QDialog& open) {
                EXPECT_EQ(open.windowTitle(), QStringLiteral("打开门窗图"));
                Press(open, "OKButton");
                Press(open, "CmdDel");
                auto* lvw = Find<ReportList>(&open, "lvw");
                EXPECT_EQ(lvw->RowCount(), before);
                lvw->SelectRow(1);
                EXPECT_EQ(TextIn(open, "txtCBN"), lvw->Text(1, 1));
                const QString name = lvw->Text(1, 0);
                dialogs_.answers = {false, true};
                Press(open, "CmdDel");
                EXPECT_EQ(lvw->RowCount(), before);
                Press(open, "CmdDel");
                EXPECT_EQ(lvw->RowCount(), before - 1);
                const QString none = QStringLiteral("提示|无选取图形！");
                const QString question = QStringLiteral("提示|确定要删除吗？(%1)").arg(name);
                EXPECT_EQ(dialogs_.TakeShown(), QStringList({none, none, question, question}));
            })
        .Run([this] { Press(*screen_, "CmdOpenEx"); });
    EXPECT_EQ(std::stoi(Rows(count)), before - 1);
    EXPECT_EQ(screen_->windowTitle(), QStringLiteral("绘图")) << "cancelled";

    Type("r 0,0 16,16 ");
    const std::string next = std::to_string(std::stoi(Rows("Select max(编号) from 图")) + 1);
    ModalScript()
        .On("frmSavePicEX",
            [&](QDialog& save) {
                EXPECT_EQ(save.windowTitle(), QStringLiteral("保存文件名"));
                EXPECT_EQ(Find<QLabel>(&save, "Label1")->text(), QStringLiteral("文件名："));
                EXPECT_EQ(Find<QLabel>(&save, "Label2")->text(), QStringLiteral("图形编号："));
                EXPECT_EQ(TextIn(save, "Text2").toStdString(), next);
                SetText(save, "Text1", "甲");
                SetText(save, "Text2", " 1 ");
                Press(save, "OKButton");
                EXPECT_EQ(Find<QLineEdit>(&save, "Text2")->selectedText(), QStringLiteral("1"));
                SetText(save, "Text2", next.c_str());
                SetText(save, "Text1", " ");
                Press(save, "OKButton");
            })
        .Run([this] { Press(*screen_, "CmdSaveEx"); });
    EXPECT_EQ(dialogs_.TakeShown(), QStringList({QStringLiteral("提示|该编号已存在，请重新输入新的编号。"),
                                                 QStringLiteral("提示|图形名称不能为空！")}));
    EXPECT_EQ(screen_->windowTitle(), QStringLiteral("文件->")) << "cancelled";
    EXPECT_EQ(SharedFieldSlots()[0] + SharedFieldSlots()[1], "");
    EXPECT_EQ(std::stoi(Rows(count)), before - 1);
}

}  // namespace kalvane::test
