#pragma once

#include <QDialog>

#include "app/instance_lock.h"

class QLabel;
class QTimer;

namespace kalvane {

/// The splash: one picture and a line of text, closing by itself. Ends with Rejected, unseen, when another
/// program works on the start-up folder; else `lock` is held and it ends with Accepted.
class frmSetup : public QDialog {
    Q_OBJECT

  public:
    explicit frmSetup(InstanceLock& lock);

    int exec() override;
    /// The operator cannot close the splash.
    void reject() override {}

  private:
    void ShowNextText();
    void CloseWhenDone();

    InstanceLock& lock_;
    QLabel* lblShow_;
    QTimer* timer1_;
    QTimer* timer2_;
    qsizetype shown_ = 0;
    bool allShown_ = false;
};

}  // namespace kalvane
