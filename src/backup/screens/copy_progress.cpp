#include "backup/screens/copy_progress.h"

#include <QApplication>

#include "ui/shown.h"

namespace kalvane {

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
