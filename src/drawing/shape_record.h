#pragma once

#include <string>
#include <vector>

#include "drawing/primitives.h"
#include "page/paint_target.h"

namespace kalvane {

/// A layer of the desk's canvas: what was painted, in drawing units, so that it can be shown at any zoom.
/// Everything is black, so the order among the kinds of marks does not matter.
class ShapeRecord final : public PaintTarget {
  public:
    struct Stroke {
        Point from;
        Point to;
        bool dashed = false;
    };
    struct Text {
        Point at;  ///< top left
        std::string text;
    };

    /// `textHeight` is that of a line in the font in which the record will be shown, in drawing units.
    explicit ShapeRecord(float textHeight) : textHeight_(textHeight) {}

    const std::vector<Stroke>& Strokes() const { return strokes_; }
    const std::vector<Text>& Texts() const { return texts_; }
    const std::vector<Point>& Dots() const { return dots_; }

    void SetDashed(bool dashed) { dashed_ = dashed; }
    void DrawDot(float x, float y) { dots_.push_back({x, y}); }
    /// Empties the record; the line style stays.
    void Clear() {
        strokes_.clear();
        texts_.clear();
        dots_.clear();
    }

    void DrawLine(float x1, float y1, float x2, float y2) override {
        strokes_.push_back({{x1, y1}, {x2, y2}, dashed_});
    }
    void DrawText(float x, float y, std::string_view text) override {
        texts_.push_back({{x, y}, std::string(text)});
    }
    float TextHeight(std::string_view) const override { return textHeight_; }
    void NewPage() override {}

  private:
    std::vector<Stroke> strokes_;
    std::vector<Text> texts_;
    std::vector<Point> dots_;
    float textHeight_;
    bool dashed_ = false;
};

}  // namespace kalvane
