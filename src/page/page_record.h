#pragma once

#include <string>
#include <variant>
#include <vector>

#include "page/page_target.h"

namespace kalvane {

struct PageLine {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};
struct PageText {
    float x = 0, y = 0;
    PageFont font;
    std::string text;
};
struct PageFill {
    Box box;
    PageColour colour;
};
using PageCommand = std::variant<PageLine, PageText, PageFill>;
using Page = std::vector<PageCommand>;

/// Sizes of texts in twips, as the output will print them.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;
    virtual float Width(std::string_view text, PageFont font) const = 0;
    /// Height of a line.
    virtual float Height(PageFont font) const = 0;
};

/// A document as the list of what is painted on each page. It is painted once and then shown, printed and
/// saved from here, so that all outputs are the same.
class PageRecord final : public PageTarget {
  public:
    /// `measure` must outlive the painting. `width` and `height` are those of the printable area, in twips.
    PageRecord(const TextMeasure& measure, float width, float height)
        : measure_(measure), width_(width), height_(height) {}

    const std::vector<Page>& Pages() const { return pages_; }

    /// True when nothing was painted and no document was ended: there is nothing to output.
    bool IsEmpty() const { return !hasEnded_ && pages_.size() == 1 && pages_.front().empty(); }

    void DrawLine(float x1, float y1, float x2, float y2) override { Add(PageLine{x1, y1, x2, y2}); }
    void DrawText(float x, float y, std::string_view text) override {
        Add(PageText{x, y, font_, std::string(text)});
    }
    float TextHeight(std::string_view) const override { return measure_.Height(font_); }
    void NewPage() override {
        pages_.emplace_back();
        startsAnew_ = false;
    }
    float Width() const override { return width_; }
    float Height() const override { return height_; }
    void SetFont(PageFont font) override { font_ = font; }
    float TextWidth(std::string_view text) const override { return measure_.Width(text, font_); }
    void FillBox(const Box& box, PageColour colour) override { Add(PageFill{box, colour}); }
    void EndDocument() override {
        hasEnded_ = true;
        startsAnew_ = true;
    }

  private:
    void Add(PageCommand command) {
        if (startsAnew_) NewPage();
        pages_.back().push_back(std::move(command));
    }

    const TextMeasure& measure_;
    float width_;
    float height_;
    PageFont font_;
    std::vector<Page> pages_ = std::vector<Page>(1);
    bool hasEnded_ = false;
    bool startsAnew_ = false;  ///< the next command begins a page, since the document before has ended
};

}  // namespace kalvane
