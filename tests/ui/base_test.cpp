// Tests of what all screens share: filters, number boxes, lists, guards, the base of the screens.

#include "platform/error.h"
#include "support/screens/screen_kit.h"
#include "ui/digit_filter.h"
#include "ui/file_filter.h"
#include "ui/guard.h"
#include "ui/main_frame.h"
#include "ui/report_list.h"
#include "ui/screen.h"

namespace kalvane {
namespace {

TEST(FileFilter, IsPutInTheToolkitsForm) {
    const char* const cases[][2] = {
        {"所有文件|*.*|BMP|*.bmp", "所有文件 (*);;BMP (*.bmp)"},
        {"图片|*.bmp; *.jpg", "图片 (*.bmp *.jpg)"},
        {"数据文件", "数据文件 (*)"},
    };
    for (const auto& [given, expected] : cases) {
        EXPECT_EQ(ToToolkitFilter(QString::fromUtf8(given)), QString::fromUtf8(expected)) << given;
    }
}

TEST(DigitFilter, FullWidthDigitsCountAsDigits) {
    QLineEdit box;
    box.setValidator(new DigitFilter(&box));
    QInputMethodEvent typed;
    typed.setCommitString(QStringLiteral("－１２。５０"));
    QApplication::sendEvent(&box, &typed);
    EXPECT_EQ(box.text(), QStringLiteral("-12.50"));
    box.insert(QStringLiteral("九x"));  // refuses nothing
    EXPECT_EQ(box.text(), QStringLiteral("-12.50九x"));
}

TEST(WheelGuard, AnUnfocusedComboKeepsItsValue) {
    QWidget window;
    QComboBox combo(&window);
    QLineEdit other(&window);
    combo.addItems({QStringLiteral("a"), QStringLiteral("b")});
    other.move(200, 0);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto turnWheel = [&combo] {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&combo, &wheel);
        return combo.currentIndex();
    };
    other.setFocus();
    EXPECT_EQ(turnWheel(), 0);
    combo.setFocus();
    EXPECT_EQ(turnWheel(), 1);
}

TEST(ReportList, RowsAndSelection) {
    ReportList list(QStringLiteral("Lvw"), {QStringLiteral("名称"), QStringLiteral("规格")});
    EXPECT_EQ(list.SelectedRow(), -1);
    for (const char* name : {"a", "b", "c"}) {
        list.AddRow({QLatin1String(name), QStringLiteral("60")}, QLatin1String(name) + QStringLiteral("!"));
    }
    EXPECT_EQ(list.SelectedRow(), -1) << "nothing is selected before the operator selects";
    list.SetText(1, 1, QStringLiteral("80"));
    EXPECT_EQ(list.Row(1), QStringList({QStringLiteral("b"), QStringLiteral("80")}));
    list.SelectRow(1);
    list.RemoveRow(0);
    EXPECT_EQ(list.SelectedRow(), 0);
    EXPECT_EQ(list.Tag(0), QStringLiteral("b!"));
    list.RemoveRow(0);
    EXPECT_EQ(list.SelectedRow(), 0) << "the selection goes to the row after";
    list.RemoveRow(0);
    EXPECT_EQ(list.SelectedRow(), -1);
}

TEST(Guard, AFailureIsToldAlsoWhenTheScreenIsGone) {
    test::ScriptedDialogs dialogs;
    auto* screen = new QWidget;
    const bool well = Guarded(screen, [screen] {
        delete screen;
        throw StoreError("坏了");
    });
    EXPECT_FALSE(well);
    EXPECT_EQ(dialogs.shown, QStringList(QStringLiteral("|坏了")));
}

class ScreenBaseTest : public test::ScreenTest {
  protected:
    Screen* NewScreen() {
        auto* screen = last_ = new Screen(QStringLiteral("frmProbe"), QStringLiteral("探针"), nullptr);
        screen->resize(300, 200);
        screen->ShowModeless();
        return screen;
    }
    static void Settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QWidget* LastWindow(const QMdiArea* frame) { return frame != nullptr ? last_->parentWidget() : last_; }
    void CloseLast() {
        Settle();
        last_->close();
        Settle();
    }

    Screen* last_ = nullptr;
};

TEST_F(ScreenBaseTest, AChildOfTheFrameClosesWithItsWindowAndDeletesItself) {
    QMdiArea area;
    SetMainFrame(&area);
    area.resize(800, 600);
    area.show();
    for (const bool byFrame : {true, false}) {
        QPointer<Screen> screen = NewScreen();
        ASSERT_EQ(area.subWindowList().size(), 1);
        EXPECT_TRUE(ActivateScreen(QStringLiteral("frmProbe")));
        EXPECT_FALSE(ActivateScreen(QStringLiteral("frmOther")));
        if (byFrame) {
            area.subWindowList().front()->close();
        } else {
            QTest::keyClick(screen, Qt::Key_Escape);
        }
        Settle();
        EXPECT_EQ(area.subWindowList().size(), 0) << byFrame;
        EXPECT_EQ(screen, nullptr) << byFrame;
    }
    SetMainFrame(nullptr);
}

TEST_F(ScreenBaseTest, SizeIsRememberedInTheFrameAndOutsideIt) {
    QMdiArea area;
    area.resize(800, 600);
    area.show();
    for (QMdiArea* frame : {&area, static_cast<QMdiArea*>(nullptr)}) {
        SetMainFrame(frame);
        EXPECT_EQ(NewScreen()->size(), QSize(300, 200)) << "its own size, the first time";
        LastWindow(frame)->setGeometry(40, 50, 420, 310);
        CloseLast();
        NewScreen();
        Settle();
        EXPECT_EQ(LastWindow(frame)->geometry(), QRect(40, 50, 420, 310)) << (frame != nullptr);
        LastWindow(frame)->showMaximized();
        CloseLast();
        NewScreen();
        Settle();
        EXPECT_TRUE(LastWindow(frame)->isMaximized()) << (frame != nullptr);
        CloseLast();
        settings_ = SettingsStore(folder_ / "forgotten");
    }
    SetMainFrame(nullptr);
}

}  // namespace
}  // namespace kalvane
