#pragma once

#include <string>
#include <vector>

#include "output/sheet_document.h"
#include "ui/screen.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace kalvane {

class PagePicture;
class PageTurner;
class ReportList;

/// The component sheets of a project, a page for each window: shows them, prints them and saves them as PDF.
class FrmGJB : public Screen {
    Q_OBJECT

  public:
    /// `sheets` has one page at least; `page`, from 1, is shown first.
    FrmGJB(SheetSet sheets, int page, QWidget* parent);

  private:
    QWidget* MakeHead();
    void ShowPage();
    void Explain();
    void Print(int first, int last);
    void SavePdf();
    SheetOptions Options() const;

    SheetSet sheets_;
    PageTurner* turner_;
    PagePicture* picture_;
    ReportList* lvw_;
    QCheckBox* keepsShape_;
    QLabel* note_;
    std::vector<QLineEdit*> boxes_;
};

/// Shows the sheets of a project's windows, the one of the window with that number first.
void ShowSheets(const std::string& projectNumber, const std::string& windowNumber, QWidget* parent);

}  // namespace kalvane
