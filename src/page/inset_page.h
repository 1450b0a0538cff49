#pragma once

#include "page/page_target.h"

namespace kalvane {

/// Another page with margins: what is painted keeps this far from its edges.
class InsetPage final : public PageTarget {
  public:
    /// `page` must outlive this. `margin` in twips.
    InsetPage(PageTarget& page, float margin) : page_(page), margin_(margin) {}

    float Width() const override { return page_.Width() - 2 * margin_; }
    float Height() const override { return page_.Height() - 2 * margin_; }
    void SetFont(PageFont font) override { page_.SetFont(font); }
    float TextWidth(std::string_view text) const override { return page_.TextWidth(text); }
    float TextHeight(std::string_view text) const override { return page_.TextHeight(text); }
    void DrawLine(float x1, float y1, float x2, float y2) override {
        page_.DrawLine(x1 + margin_, y1 + margin_, x2 + margin_, y2 + margin_);
    }
    void DrawText(float x, float y, std::string_view text) override {
        page_.DrawText(x + margin_, y + margin_, text);
    }
    void FillBox(const Box& box, PageColour colour) override {
        page_.FillBox({box.x1 + margin_, box.y1 + margin_, box.x2 + margin_, box.y2 + margin_}, colour);
    }
    void NewPage() override { page_.NewPage(); }
    void EndDocument() override { page_.EndDocument(); }

  private:
    PageTarget& page_;
    float margin_;
};

}  // namespace kalvane
