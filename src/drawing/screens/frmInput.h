#pragma once

#include "ui/screen.h"

class QLineEdit;

namespace kalvane {

/// Asks for the text of a text item.
class frmInput final : public Screen {
    Q_OBJECT

  public:
    explicit frmInput(QWidget* parent);

    /// What was confirmed; empty when the dialog was cancelled.
    QString Text() const { return text_; }

  private:
    void Confirm();

    QLineEdit* text1_;
    QString text_;
};

}  // namespace kalvane
