#pragma once

#include "ui/entry_screen.h"

class QLineEdit;

namespace kalvane {

/// Asks for the name and the number of a drawing that is new in the library. A choice comes back in the
/// shared slots: the number in slot 0, the name in slot 1.
class frmSavePicEX final : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmSavePicEX(QWidget* parent);

  private:
    void Confirm();

    QLineEdit* name_;
    QLineEdit* number_;
};

}  // namespace kalvane
