#pragma once

#include "page/page_target.h"

namespace kalvane {

/// The drawing frame reduced to a box of a page, with all that is painted in it: arrows and marks shrink with
/// the drawing. Texts keep the page's font.
class ScaledPicture final : public PaintTarget {
  public:
    /// `page` must outlive this. `box` in twips of the page, with the frame's proportions.
    ScaledPicture(PageTarget& page, const Box& box)
        : page_(page), box_(box), scale_((box.x2 - box.x1) / kFrameWidth) {}

    void DrawLine(float x1, float y1, float x2, float y2) override {
        page_.DrawLine(X(x1), Y(y1), X(x2), Y(y2));
    }
    void DrawText(float x, float y, std::string_view text) override { page_.DrawText(X(x), Y(y), text); }
    float TextHeight(std::string_view text) const override { return page_.TextHeight(text) / scale_; }
    /// Does nothing: it is one picture.
    void NewPage() override {}

  private:
    float X(float x) const { return box_.x1 + x * scale_; }
    float Y(float y) const { return box_.y1 + y * scale_; }

    PageTarget& page_;
    Box box_;
    float scale_;
};

}  // namespace kalvane
