#pragma once

#include "ui/screen.h"

namespace kalvane {

class CopyProgress;

/// Saves the working content of the main store into a backup file and puts it back.
class frmTools : public Screen {
    Q_OBJECT

  public:
    explicit frmTools(QWidget* parent);

  private:
    void Backup();
    void Restore();

    CopyProgress* progress_;
};

}  // namespace kalvane
