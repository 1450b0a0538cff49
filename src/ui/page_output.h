#pragma once

#include "ui/page_document.h"

class QWidget;

namespace kalvane {

/// The one way to paper: paints a document and shows it in frmPreview, where the operator chooses a printer,
/// prints, or saves a PDF file. A machine without a printer has preview and PDF all the same. When `paint`
/// paints nothing (having told the operator why), nothing comes up. True when the document was printed or
/// saved. What `paint` throws goes to the caller.
bool PrintDocument(QWidget* parent, const QString& title, const PageSetup& setup, const PaintPages& paint);

}  // namespace kalvane
