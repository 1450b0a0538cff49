#pragma once

#include <string>

#include "ui/entry_screen.h"

namespace kalvane {

class ReportList;

/// The movements of a material with the stock after each; from a movement to its note.
class frmStockFlow : public EntryScreen {
    Q_OBJECT

  public:
    frmStockFlow(const std::string& code, QWidget* parent);

  private:
    void ShowCard(const std::string& code);
    void Preview();

    ReportList* lvw_;
};

}  // namespace kalvane
