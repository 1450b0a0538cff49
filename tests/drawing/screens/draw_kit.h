#pragma once

#include "drawing/recorders.h"
#include "drawing/screens/FrmDraw.h"
#include "drawing/screens/drawing_canvas.h"
#include "support/screens/screen_kit.h"
#include "ui/report_list.h"

namespace kalvane::test {

/// A test of the desk on the screen.
class DrawScreenTest : public ScreenTest {
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

    // Each of these is one action of the operator.
    void Press(const char* button) {
        ++actions_;
        test::Press(*screen_, button);
    }
    void Click(QPoint cell, Qt::MouseButton button = Qt::LeftButton) {
        ++actions_;
        QTest::mouseClick(pic_, button, {}, InCell(cell));
    }

    /// The position in the middle of a cell of the grid.
    QPoint InCell(QPoint cell) const {
        return pic_
            ->ToWidget({(static_cast<float>(cell.x()) + 0.5F) * 118.6875F,
                        (static_cast<float>(cell.y()) + 0.5F) * 123.984375F})
            .toPoint();
    }
    /// Key by key, to whatever has the focus of the screen by then.
    void Type(const char* text) {
        for (; *text != '\0'; ++text) QTest::keyClick(screen_->focusWidget(), *text);
    }
    std::string Items() const { return Describe(screen_->Desk().Picture()); }

    std::unique_ptr<FrmDraw> screen_;
    DrawingCanvas* pic_ = nullptr;
    QLineEdit* command_ = nullptr;
    int actions_ = 0;
};

}  // namespace kalvane::test
