#pragma once

#include <cstdint>
#include <string_view>

#include "page/paint_target.h"

namespace kalvane {

/// Size and weight of the texts on a page; the family is the output's, one that holds all Chinese
/// characters.
struct PageFont {
    float points = 9;
    bool bold = false;

    friend bool operator==(const PageFont&, const PageFont&) = default;
};

struct PageColour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const PageColour&, const PageColour&) = default;
};

/// A document of pages that goes to the printer, to a preview or to a PDF file. Everything on a
/// page is given by its position in twips, with the origin at the top left of the printable area; nothing is
/// clipped.
class PageTarget : public PaintTarget {
  public:
    /// Size of the printable area in twips.
    virtual float Width() const = 0;
    virtual float Height() const = 0;

    /// Font of the texts from here on, across pages; 9 points at first.
    virtual void SetFont(PageFont font) = 0;
    /// Width of a text in the current font, in twips.
    virtual float TextWidth(std::string_view text) const = 0;

    /// Fills a box; what is painted later covers it.
    virtual void FillBox(const Box& box, PageColour colour) = 0;

    /// Ends the document. What is painted after it begins a new page.
    virtual void EndDocument() = 0;
};

}  // namespace kalvane
