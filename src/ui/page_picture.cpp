#include "ui/page_picture.h"

#include <QPainter>

namespace kalvane {

PagePicture::PagePicture(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
}

void PagePicture::Show(std::shared_ptr<const PageDocument> document, int page, QSizeF size) {
    document_ = std::move(document);
    page_ = page;
    size_ = size;
    update();
}

void PagePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(Qt::gray);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (document_ == nullptr || page_ >= document_->PageCount()) return;
    const double unitsPerTwip = qMin(width() / size_.width(), height() / size_.height());
    document_->PaintPage(page_, painter, unitsPerTwip, PainterTarget::Medium::Screen);
}

}  // namespace kalvane
