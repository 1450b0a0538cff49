// Tests of what all screens share: guards, the base of the screens.

#include "numeric/error.h"
#include "support/screens/screen_kit.h"
#include "ui/guard.h"
#include "ui/main_frame.h"
#include "ui/screen.h"

namespace kalvane::test {
namespace {

TEST(Guard, AFailureIsToldAlsoWhenTheScreenIsGone) {
    ScriptedDialogs dialogs;
    auto* screen = new QWidget;
    const bool well = Guarded(screen, [screen] {
        delete screen;
        throw StoreError("坏了");
    });
    EXPECT_FALSE(well);
    EXPECT_EQ(dialogs.TakeShown(), "|坏了");
}

class ScreenBaseTest : public ScreenTest {
  protected:
    Screen* NewScreen() {
        auto* screen = last_ = new Screen("frmProbe", "探针", nullptr);
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
        EXPECT_TRUE(ActivateScreen("frmProbe"));
        EXPECT_FALSE(ActivateScreen("frmOther"));
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
        CloseLast();
        settings_ = SettingsStore(folder_ / "forgotten");
    }
    SetMainFrame(nullptr);
}

}  // namespace
}  // namespace kalvane::test
