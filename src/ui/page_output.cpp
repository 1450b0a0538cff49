#include "ui/page_output.h"

#include "ui/frmPreview.h"

namespace kalvane {

bool PrintDocument(QWidget* parent, const QString& title, const PageSetup& setup, const PaintPages& paint) {
    PageDocument document(title, setup, paint);
    if (document.IsEmpty()) return false;
    frmPreview preview(std::move(document), parent);
    preview.exec();
    return preview.IsDelivered();
}

}  // namespace kalvane
