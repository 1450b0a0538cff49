#pragma once

#include <QWidget>
#include <memory>

#include "ui/page_document.h"

namespace kalvane {

/// Shows one page of a document, as large as the widget allows.
class PagePicture : public QWidget {
    Q_OBJECT

  public:
    explicit PagePicture(const QString& name, QWidget* parent = nullptr);

    /// Shows a page, counted from 0: of the sheet, what lies from its top left up to `size`, in twips.
    void Show(std::shared_ptr<const PageDocument> document, int page, QSizeF size);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::shared_ptr<const PageDocument> document_;
    int page_ = 0;
    QSizeF size_;
};

}  // namespace kalvane
