#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <functional>

#include "optimise/run_progress.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace kalvane {

/// Runs an optimisation below a screen: shows how far it is and for how long it has been at work, keeps the
/// screen painted, and takes the operator's wish to end it. Meanwhile the rest of the screen is disabled.
///
/// All of it happens on the one thread: the run calls back, and the panel lets the events through. So a
/// screen must not go away under its run: its done() cancels the run instead.
class RunPanel : public QWidget {
    Q_OBJECT

  public:
    /// A direct child of the screen.
    explicit RunPanel(QWidget* screen);

    QProgressBar& Bar() { return *bar_; }

    using Work = std::function<RunEnd(const RunProgress&)>;
    /// What is shown of a stage, beside the time; called at each new material and some 30 times a second.
    using Show = std::function<QString(const RunStage&)>;

    /// Runs `work` and returns when it is over; a cancelled run is told to the operator. What `work` throws
    /// goes on to the caller. Not to be called while a run is on.
    void Run(const Work& work, const Show& show);

    bool IsRunning() const { return isRunning_; }

    /// Asks the run that is on to end.
    void CancelRun();

  private:
    class Running;

    void ShowParts(bool shown);
    void Tick(const RunStage& stage, const Show& show);

    QWidget* screen_;
    QProgressBar* bar_;
    QLabel* state_;
    QPushButton* cancel_;
    bool isRunning_ = false;
    bool isCancelled_ = false;
    RunStage stage_;
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceEvents_;
};

}  // namespace kalvane
