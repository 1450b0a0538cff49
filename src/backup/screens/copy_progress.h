#pragma once

#include <QProgressBar>

#include "backup/backup.h"

namespace kalvane {

/// How many of the backup tables are done. Hidden, with its room kept, while nothing runs.
class CopyProgress : public QProgressBar {
    Q_OBJECT

  public:
    explicit CopyProgress(QWidget* screen);

    /// Shows the bar and runs `work` with the routine it is to report to. Between two tables the screen
    /// repaints, but takes no input. What `work` throws goes on to the caller.
    void Run(const std::function<void(const TableProgress&)>& work);
};

}  // namespace kalvane
