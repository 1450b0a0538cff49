#pragma once

#include "ui/screen.h"

class QLineEdit;
class QPushButton;

namespace kalvane {

class DrawingBox;
class ReportList;

/// The drawings of the library with a preview. A choice comes back in the shared slots: the number in slot 0,
/// the name in slot 1.
class frmOpenPicture final : public Screen {
    Q_OBJECT

  public:
    explicit frmOpenPicture(QWidget* parent);

    /// For a choice that must not lose the library a drawing.
    void ForbidDelete();

  private:
    void Load();
    /// Shows number and picture of the selected drawing, or that there is none.
    void ShowSelected();
    void Confirm();
    void Delete();

    ReportList* lvw_;
    QPushButton* del_;
    QLineEdit* txtCBN_;
    DrawingBox* picture_;
};

}  // namespace kalvane
