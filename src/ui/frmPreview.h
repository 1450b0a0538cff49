#pragma once

#include <utility>

#include "ui/page_document.h"
#include "ui/screen.h"

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace kalvane {

class PageView;

/// Shows a document before it goes to paper: the pages, the choice of a printer, copies and pages, and
/// saving as PDF. It stays open after either, until it is closed.
class frmPreview : public Screen {
    Q_OBJECT

  public:
    frmPreview(PageDocument document, QWidget* parent);

    /// True once the document was printed or saved.
    bool IsDelivered() const { return isDelivered_; }

  private:
    void LayOut();
    void FillPrinters();
    void ShowPlace();
    void Zoom();
    /// To the next larger (1) or smaller (-1) scale of the list.
    void StepZoom(int direction);
    void Print();
    void SavePdf();
    /// The chosen pages, counted from 0.
    std::pair<int, int> ChosenPages() const;
    void ShowDelivered(const QString& text);

    const PageDocument document_;
    bool isDelivered_ = false;
    PageView* pages_;
    QComboBox* printers_;
    QSpinBox* copies_;
    QSpinBox* first_;
    QSpinBox* last_;
    QComboBox* zoom_;
    QPushButton* print_;
    QPushButton* pdf_;
    QLabel* place_;
    QLabel* delivered_;
};

}  // namespace kalvane
