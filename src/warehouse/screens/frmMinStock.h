#pragma once

#include "ui/entry_screen.h"

class QCheckBox;

namespace kalvane {

class ReportList;

/// The minimum stock of each 规格, and what lies below it.
class frmMinStock : public EntryScreen {
    Q_OBJECT

  public:
    explicit frmMinStock(QWidget* parent);

  private:
    void LayOut(std::initializer_list<QPushButton*> buttons, QPushButton* set);
    /// Reads the list anew and leads back to the 规格 that was selected.
    void ShowLevels();
    void ShowMinimum();
    void Set();

    QCheckBox* low_;
    ReportList* lvw_;
    QLineEdit* minimum_;
};

}  // namespace kalvane
