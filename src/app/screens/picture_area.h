#pragma once

#include <QImage>
#include <QMdiArea>

namespace kalvane {

/// The frame for child screens with a picture behind them. The picture fills the frame at its own
/// proportions, cut at the edges where need be.
class PictureArea : public QMdiArea {
    Q_OBJECT

  public:
    explicit PictureArea(QWidget* parent);

    /// Shows the picture of a file. Throws FileError, and keeps the old picture, when it cannot be read.
    void LoadPicture(const QString& file);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QImage picture_;
};

}  // namespace kalvane
