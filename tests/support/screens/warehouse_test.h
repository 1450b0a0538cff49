#pragma once

#include "app/screens/MDIMain.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {

/// A test of the warehouse's screens, from the main screen on.
class WarehouseScreensTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        frame_ = std::make_unique<MDIMain>();
        frame_->Load();
        frame_->show();
    }

    static std::string Stock(const std::string& sql) { return test::Rows(App().Stock(), sql); }
    void Open(const char* command) { Find<QAction>(frame_.get(), command)->trigger(); }

    std::unique_ptr<MDIMain> frame_;
};

}  // namespace kalvane::test
