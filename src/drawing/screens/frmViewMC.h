#pragma once

#include "ui/entry_screen.h"

class QComboBox;
class QLabel;
class QListWidget;

namespace kalvane {

class DrawingBox;

/// Chooses a drawing file, with a picture of the file under the cursor. Starts at the folder of the setting
/// PICTUREPATH, or at the user's documents when there is no such folder.
class frmViewMC : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmViewMC(QWidget* parent = nullptr);

    /// The chosen file; empty until the screen was confirmed.
    const QString& ResultPath() const { return resultPath_; }

  private:
    void FillDrives();
    /// Lists the folders and files of a folder.
    void EnterFolder(const QString& folder);
    void EnterSelectedFolder();
    void ShowPicture();
    void Confirm();
    /// Name of the selected file; empty for none.
    QString SelectedFile() const;
    QString PathOf(const QString& file) const;

    QString folder_;
    QString resultPath_;
    QComboBox* drive_;
    QLabel* folderLabel_;
    QListWidget* folders_;
    QListWidget* files_;
    DrawingBox* picture_;
};

}  // namespace kalvane
