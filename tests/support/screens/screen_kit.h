#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>

#include "app/store_setup.h"
#include "platform/settings_store.h"
#include "session/app_state.h"
#include "store/store_files.h"
#include "support/screens/scripted_dialogs.h"
#include "support/store_rows.h"
#include "support/temp_folder.h"
#include "ui/report_list.h"
#include "ui/screen_memory.h"

namespace kalvane::test {

/// A control by its name; a missing one fails the test, and the test program ends.
template <typename Control>
Control* Find(const QWidget* screen, const char* name) {
    auto* control = screen->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) {
        ADD_FAILURE() << screen->objectName().toStdString() << " has no " << name;
        std::abort();
    }
    return control;
}

inline void Press(const QWidget& screen, const char* button) {
    Find<QPushButton>(&screen, button)->click();
}
inline QString TextIn(const QWidget& screen, const char* box) {
    return Find<QLineEdit>(&screen, box)->text();
}
inline void SetText(const QWidget& screen, const char* box, const char* text) {
    Find<QLineEdit>(&screen, box)->setText(QString::fromUtf8(text));
}

/// Takes away the selection of a list, which has its first row selected when it is opened.
inline void Deselect(const QWidget& screen, const char* name) {
    Find<ReportList>(&screen, name)->clearSelection();
}

/// The rows of a list, as Rows gives those of a store.
inline std::string Table(const QWidget& screen, const char* name) {
    const auto* list = Find<ReportList>(&screen, name);
    QStringList rows;
    for (int row = 0; row < list->RowCount(); ++row) rows << list->Row(row).join(QLatin1Char('|'));
    return rows.join(QLatin1Char('\n')).toStdString();
}

/// What the operator does at modal screens: one step for each screen that comes up, told by its name, in
/// order. A step may open the next screen, whose step then runs inside it. A step that leaves its screen
/// open has it closed behind it.
class ModalScript {
  public:
    using Work = std::function<void(QDialog&)>;

    ModalScript& On(const char* screen, Work work) {
        steps_.push_back({QLatin1String(screen), std::move(work)});
        return *this;
    }

    /// Runs what opens the first screen and returns when all of it is over; every step must have run.
    void Run(const std::function<void()>& open) {
        QTimer::singleShot(0, &alive_, [this] { Poll(); });
        open();
        for (const Step& step : steps_) {
            ADD_FAILURE() << "never came up: " << step.screen.toStdString();
        }
        steps_.clear();
    }

  private:
    struct Step {
        QString screen;
        Work work;
    };
    static constexpr int kPollMilliseconds = 2;
    static constexpr int kPatienceMilliseconds = 10000;

    void Poll() {
        if (steps_.empty() && !givenUp_) return;
        auto* screen = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        // Not the timer's own slot again: the step may wait in an event loop of its own.
        QTimer::singleShot(kPollMilliseconds, &alive_, [this] { Poll(); });
        if (givenUp_) {
            if (screen != nullptr) screen->done(QDialog::Rejected);
            return;
        }
        if (screen == nullptr || screen->objectName() != steps_.front().screen || !screen->isActiveWindow()) {
            givenUp_ = ++waits_ * kPollMilliseconds > kPatienceMilliseconds;
            return;
        }
        waits_ = 0;
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        const QPointer<QDialog> open(screen);
        step.work(*screen);
        if (open != nullptr && open->isVisible()) open->done(QDialog::Rejected);
    }

    QObject alive_;  ///< polls end with the script
    std::deque<Step> steps_;
    int waits_ = 0;
    bool givenUp_ = false;  ///< from then on whatever comes up is closed, so that the test ends
};

/// A test of screens: a folder of its own with fresh stores as the program makes them, AppState as after the
/// start of the program (logged in as Admin, both stores open), and dialogs that are scripted.
class ScreenTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* name :
             {kMainStoreName, kStockStoreName, kUserStoreName, kTemplateStoreName, kOwnStoreName}) {
            std::filesystem::copy_file(FreshStores() / name, folder_ / name);
        }
        AppState& state = App();
        state.loginOK = true;
        state.userName = "Admin";
        state.userAuth = "111111111111";
        state.folder = folder_.Path();
        state.settings = &settings_;
        UseScreenMemory(&settings_, QString::fromStdString(folder_.Path().string()));
        state.mainConnection = std::make_unique<Connection>(folder_ / kMainStoreName, StoreKind::Main);
        state.mainConnectionText = state.mainConnection->ConnectionText();
        state.stockConnection = std::make_unique<Connection>(folder_ / kStockStoreName, StoreKind::Stock);
        state.stockConnectionText = state.stockConnection->ConnectionText();
        state.ownConnection = std::make_unique<Connection>(folder_ / kOwnStoreName, StoreKind::Own);
    }

    void TearDown() override {
        App() = AppState();
        UseScreenMemory(nullptr, {});
        SharedFieldSlots() = FieldSlots();
    }

    static std::string Rows(const std::string& sql) { return test::Rows(App().Main(), sql); }
    QString InFolder(const std::string& name) const {
        return QString::fromStdString((folder_ / name).string());
    }

    const TempFolder folder_;
    SettingsStore settings_{folder_ / "settings"};
    ScriptedDialogs dialogs_;

  private:
    /// Made once: filling the starter library takes longer than most tests.
    static const TempFolder& FreshStores() {
        static const TempFolder folder;
        static const bool made = (CreateMissingStores(folder.Path()), true);
        (void)made;
        return folder;
    }
};

}  // namespace kalvane::test
