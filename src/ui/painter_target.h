#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QLineF>
#include <QPen>
#include <vector>

#include "page/page_target.h"

class QPainter;

namespace kalvane {

/// Twips of a logical pixel: 1440 an inch over 96 an inch.
inline constexpr int kTwipsPerPixel = 15;

/// Paint target over a painter: one paint path for the screen, images, the printer and PDF. The painter's
/// own translation sets the origin. On a screen strokes are collected, which is much faster than to paint
/// them one by one: they reach the painter before the next text or box and when the target ends. Until then
/// the painter must live and keep its state.
class PainterTarget : public PaintTarget {
  public:
    enum class Medium {
        Screen,  ///< strokes one device unit wide on whole pixels, slanted ones smoothed
        Paper    ///< strokes half a point wide
    };

    /// `unitsPerTwip` is the device's scale; texts follow it, whatever resolution the device claims.
    PainterTarget(QPainter& painter, double unitsPerTwip, Medium medium);
    PainterTarget(const PainterTarget&) = delete;
    PainterTarget& operator=(const PainterTarget&) = delete;
    ~PainterTarget() override;

    void DrawLine(float x1, float y1, float x2, float y2) override;
    void DrawText(float x, float y, std::string_view text) override;
    float TextHeight(std::string_view text) const override;
    void FillBox(const Box& box, PageColour colour);
    /// Does nothing: it paints one picture, or one page of a PageDocument.
    void NewPage() override {}

    /// Width of a text in twips.
    float TextWidth(std::string_view text) const;

    /// Font of the texts from here on; 9 points at first.
    void SetFont(PageFont font);
    /// Style of the strokes from here on; solid at first.
    void SetDashed(bool dashed);
    /// Colour of the texts from here on; black at first.
    void SetTextColour(const QColor& colour) { textColour_ = colour; }

  private:
    void UseFont();
    void UsePen(const QPen& pen);
    void PaintStrokes();

    QPainter& painter_;
    double unitsPerTwip_;
    Medium medium_;
    PageFont pageFont_;
    QFont font_;             ///< the same on the device
    QFontMetricsF metrics_;  ///< of font_
    QColor textColour_ = Qt::black;
    QPen strokePen_;
    std::vector<QLineF> straight_;  ///< strokes along an axis that are still to be painted
    std::vector<QLineF> slanted_;   ///< the others
    std::size_t slantedPainted_ = 0;
};

}  // namespace kalvane
