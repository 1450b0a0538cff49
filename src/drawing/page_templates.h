#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "page/page_target.h"

namespace kalvane {

/// What is printed in place of a label's name: its value, with its top left at (x, y) on the page, in twips.
struct PageLabel {
    float x = 0;
    float y = 0;
    std::string text;
};

/// The value of a label at its place in the drawing box of the component sheet, from its position in drawing
/// units. The bare drawing page takes the same places, although its box is another one.
PageLabel LabelOnPage(double px, double py, std::string text);

/// The same at its place in another box for the drawing.
PageLabel LabelInBox(double px, double py, std::string text, const Box& box);

/// The table of a component sheet: five columns of texts, columns and rows counted from 1.
class SheetTable {
  public:
    static constexpr int kColumns = 5;

    void SetCell(int column, int row, std::string text);
    /// Empty for a cell that was never set, also behind the last row.
    const std::string& Cell(int column, int row) const;

  private:
    std::vector<std::array<std::string, kColumns>> rows_;
};

/// Boxes of the two pages for the drawing's frame.
inline constexpr Box kSheetDrawingBox{0, 1000, 5500, 4917};
inline constexpr Box kDrawingPageBox{0, 500, 5000, 4917};

/// The content of a component-sheet page.
struct ComponentSheet {
    std::string drawingNumber;
    std::array<std::string, 12> titles;  ///< values of the head, in the order of its places
    SheetTable table;
    std::int16_t rowCount = 0;
    std::vector<PageLabel> labels;
    std::string maker;  ///< the workshop's name
    Box drawingBox = kSheetDrawingBox;
};

/// Paints what is on a component sheet besides its drawing, and the pages that continue its table: the
/// first page holds 46 rows, each further one 66. The row behind the first page's last is left out and one
/// behind the last row is read, so a table that is continued has its rows from 47 on one place later.
void PaintComponentSheet(PageTarget& page, const ComponentSheet& sheet);

/// Prints labels with a text.
void PaintLabels(PaintTarget& page, std::span<const PageLabel> labels);

}  // namespace kalvane
