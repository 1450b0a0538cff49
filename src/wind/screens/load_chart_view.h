#pragma once

#include <QWidget>

#include "wind/load_chart.h"

namespace kalvane {

/// The standard load over the height for the four terrains, with the chosen point and its value.
class LoadChartView : public QWidget {
    Q_OBJECT

  public:
    explicit LoadChartView(QWidget* parent);

    void Show(LoadChart chart);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void PaintAxes(QPainter& painter, const QRectF& field) const;
    void PaintLine(QPainter& painter, const QRectF& field, std::size_t terrain) const;
    QPointF Place(const QRectF& field, std::size_t height, double wk) const;

    LoadChart chart_;
    double top_ = 1;  ///< of the axis of loads
};

}  // namespace kalvane
