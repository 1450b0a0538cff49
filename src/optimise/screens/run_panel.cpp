#include "optimise/screens/run_panel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>

#include "numeric/assertion.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"

namespace kalvane {
namespace {

/// How long the screen may stand still: an operator takes it for fluent, and it costs the run little.
constexpr int kMillisecondsPerLook = 30;
constexpr int kBarWidth = 160;

QString Elapsed(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("用时 %1:%2")
        .arg(seconds / 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

/// The state of a run: the screen around the panel is disabled, the panel shown. It ends with the run, also
/// when that throws.
class RunPanel::Running {
  public:
    explicit Running(RunPanel& panel) : panel_(panel), focus_(panel.screen_->focusWidget()) {
        panel_.isRunning_ = true;
        panel_.isCancelled_ = false;
        panel_.stage_ = RunStage();
        panel_.sinceStart_.start();
        panel_.sinceEvents_.start();
        for (QWidget* control : panel_.screen_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (control == &panel_ || control->isWindow() || !control->isEnabled()) continue;
            const bool onlyTells =
                qobject_cast<QLabel*>(control) != nullptr || qobject_cast<QStatusBar*>(control) != nullptr;
            if (onlyTells) continue;
            control->setEnabled(false);
            disabled_ << control;
        }
        panel_.ShowParts(true);
        QApplication::setOverrideCursor(Qt::BusyCursor);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() {
        QApplication::restoreOverrideCursor();
        panel_.ShowParts(false);
        for (QWidget* control : disabled_) control->setEnabled(true);
        if (focus_ != nullptr) focus_->setFocus();
        panel_.isRunning_ = false;
    }

  private:
    RunPanel& panel_;
    QPointer<QWidget> focus_;
    QList<QWidget*> disabled_;
};

RunPanel::RunPanel(QWidget* screen)
    : QWidget(screen),
      screen_(screen),
      bar_(new QProgressBar(this)),
      state_(new QLabel(this)),
      cancel_(MakeButton("CmdCancelRun", QStringLiteral("取消优化 &C"), this,
                         QStringLiteral("停止优化，保留已排好的材料"))) {
    bar_->setObjectName(QStringLiteral("ProgressBar"));
    bar_->setTextVisible(false);
    bar_->setMaximumWidth(kBarWidth);
    state_->setObjectName(QStringLiteral("LblState"));
    cancel_->setAutoDefault(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(bar_, 1);
    row->addWidget(state_, 2);
    row->addWidget(cancel_);
    for (QWidget* part : std::initializer_list<QWidget*>{bar_, state_, cancel_}) {
        QSizePolicy room = part->sizePolicy();
        room.setRetainSizeWhenHidden(true);
        part->setSizePolicy(room);
    }
    ShowParts(false);
    OnSignal(cancel_, &QPushButton::clicked, screen, [this] { CancelRun(); });
}

void RunPanel::Run(const Work& work, const Show& show) {
    KALVANE_ASSERT(!isRunning_);
    RunEnd end;
    {
        const Running running(*this);
        state_->setText(Elapsed(0));
        QApplication::processEvents();
        end = work([&](const RunStage& stage) { Tick(stage, show); });
    }
    if (end == RunEnd::Cancelled) {
        Tell(screen_, QStringLiteral("优化已取消，已排好的 %1 根材料保留在优化结果中。").arg(stage_.bars));
    }
}

void RunPanel::ShowParts(bool shown) {
    for (QWidget* part : std::initializer_list<QWidget*>{bar_, state_, cancel_}) part->setVisible(shown);
    cancel_->setEnabled(shown);
}

void RunPanel::CancelRun() {
    isCancelled_ = true;
    cancel_->setEnabled(false);
}

void RunPanel::Tick(const RunStage& stage, const Show& show) {
    const bool isNewMaterial = stage.material != stage_.material || stage_.pieces == 0;
    stage_ = stage;
    if (isNewMaterial || sinceEvents_.elapsed() >= kMillisecondsPerLook) {
        state_->setText(show(stage) + QStringLiteral("    ") + Elapsed(sinceStart_.elapsed()));
    }
    if (sinceEvents_.elapsed() >= kMillisecondsPerLook) {
        QApplication::processEvents();
        sinceEvents_.start();
    }
    if (isCancelled_) throw RunCancelled();
}

}  // namespace kalvane
