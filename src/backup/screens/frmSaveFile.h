#pragma once

#include "ui/screen.h"

class QComboBox;
class QLineEdit;

namespace kalvane {

class CopyProgress;
class FolderTree;

/// Asks where a backup goes, and writes it.
class frmSaveFile : public Screen {
    Q_OBJECT

  public:
    explicit frmSaveFile(QWidget* parent);

    /// Under which the last folder of backups is remembered, for saving and for opening.
    static QString Purpose();

  private:
    void FillDrives();
    void ShowDriveOf(const QString& folder);
    void Save();

    QComboBox* Drive1_;
    FolderTree* Dir1_;
    QLineEdit* TxtFileName_;
    CopyProgress* progress_;
};

}  // namespace kalvane
