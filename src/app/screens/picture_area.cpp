#include "app/screens/picture_area.h"

#include <QImageReader>
#include <QPaintEvent>
#include <QPainter>

#include "numeric/error.h"
#include "ui/text.h"

namespace kalvane {

PictureArea::PictureArea(QWidget* parent) : QMdiArea(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void PictureArea::LoadPicture(const QString& file) {
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (picture.isNull()) throw FileError("图片“" + FromQt(file) + "”不能打开。");
    picture_ = picture;
    viewport()->update();
}

void PictureArea::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (picture_.isNull()) {
        painter.fillRect(event->rect(), palette().dark());
        return;
    }
    const QRect area = viewport()->rect();
    QRect target(QPoint(), picture_.size().scaled(area.size(), Qt::KeepAspectRatioByExpanding));
    target.moveCenter(area.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture_);
}

}  // namespace kalvane
