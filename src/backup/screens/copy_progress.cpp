#include "backup/screens/copy_progress.h"

#include <QApplication>

namespace kalvane {
namespace {

/// Hides the bar again, also after a failure.
class Shown {
  public:
    explicit Shown(QWidget* bar) : bar_(bar) { bar_->show(); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    ~Shown() { bar_->hide(); }

  private:
    QWidget* bar_;
};

}  // namespace

CopyProgress::CopyProgress(QWidget* screen) : QProgressBar(screen) {
    setObjectName(QStringLiteral("ProgressBar"));
    setRange(0, static_cast<int>(BackupTables().size()));
    setFormat(QStringLiteral("%v / %m 张表"));
    setAlignment(Qt::AlignCenter);
    QSizePolicy room = sizePolicy();
    room.setRetainSizeWhenHidden(true);
    setSizePolicy(room);
    hide();
}

void CopyProgress::Run(const std::function<void(const TableProgress&)>& work) {
    const Shown shown(this);
    const auto show = [this](int tables) {
        setValue(tables);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    show(0);
    work(show);
}

}  // namespace kalvane
