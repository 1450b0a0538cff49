#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "drawing/drawing_items.h"
#include "drawing/drawing_tool.h"
#include "drawing/page_templates.h"
#include "drawing/primitive_list.h"
#include "drawing/primitives.h"
#include "platform/notice_limit.h"

namespace kalvane {

class Canvas;
class Connection;
class StatusBar;
class TextForm;

/// One drawing: up to 361 items of each kind, in drawing units. Copies are independent, so a screen that
/// repaints keeps one of its own. On the drawing desk it also runs the tools.
class CPictire {
  public:
    /// `notice` must outlive the drawing and its copies.
    explicit CPictire(Notice& notice) : notice_(&notice) {}

    /// While it lives, only the first fifty items that find their kind full are reported, then once that
    /// there are more: for loads, where each message would have to be confirmed before the next.
    class FullNoticeLimit;

    // Adds one item. When the kind is full, that is reported and the item is dropped.
    void AddLine(const LineItem& item) { Add(lines_, item); }
    void AddRec(const RectangleItem& item) { Add(rectangles_, item); }
    void AddDim(const DimensionItem& item) { Add(dimensions_, item); }
    void AddDir(const ArrowItem& item) { Add(arrows_, item); }
    void AddString(const TextItem& item) { Add(strings_, item); }
    void AddArc(const ArcItem& item) { Add(arcs_, item); }

    // Takes one item out; the last of its kind moves to its place.
    void DelLine(int index) { lines_.DeleteAt(index); }
    void DelRec(int index) { rectangles_.DeleteAt(index); }
    void DelDim(int index) { dimensions_.DeleteAt(index); }
    void DelDir(int index) { arrows_.DeleteAt(index); }
    void DelString(int index) { strings_.DeleteAt(index); }
    void DelArc(int index) { arcs_.DeleteAt(index); }

    // Takes out the items of a kind of which any stored point is in the box. The two corners are
    // left ordered, as PointInBox does.
    void DelLinesIn(Point& cornerA, Point& cornerB) { DeleteIn(lines_, cornerA, cornerB); }
    void DelRecsIn(Point& cornerA, Point& cornerB) { DeleteIn(rectangles_, cornerA, cornerB); }
    void DelDimsIn(Point& cornerA, Point& cornerB) { DeleteIn(dimensions_, cornerA, cornerB); }
    void DelDirsIn(Point& cornerA, Point& cornerB) { DeleteIn(arrows_, cornerA, cornerB); }
    void DelStringsIn(Point& cornerA, Point& cornerB) { DeleteIn(strings_, cornerA, cornerB); }
    void DelArcsIn(Point& cornerA, Point& cornerB) { DeleteIn(arcs_, cornerA, cornerB); }

    /// True when the point is in the box, edges included. Orders the corners first: cornerA takes the
    /// smaller x and y, cornerB the greater.
    static bool PointInBox(Point point, Point& cornerA, Point& cornerB);

    /// Empties all six kinds.
    void ClearData();

    DrawingItems Items() const;
    /// Puts other items in place of all that is held; at most 361 of a kind.
    void SetItems(const DrawingItems& items);

    const PrimitiveList<LineItem>& Lines() const { return lines_; }
    const PrimitiveList<RectangleItem>& Rectangles() const { return rectangles_; }
    const PrimitiveList<DimensionItem>& Dimensions() const { return dimensions_; }
    const PrimitiveList<ArrowItem>& Arrows() const { return arrows_; }
    const PrimitiveList<TextItem>& Strings() const { return strings_; }
    const PrimitiveList<ArcItem>& Arcs() const { return arcs_; }

    /// Last index of the text items: -1 when there is none.
    std::int16_t GetStringCount() const { return strings_.LastIndex(); }

    /// Copies positions and texts of the text items to indices 0 to GetStringCount() of the arrays, which
    /// must be that large.
    void GetStrings(std::span<float> xs, std::span<float> ys, std::span<std::string> texts) const;

    /// Keeps two scale factors. No output depends on them.
    void SetXY(float xScale, float yScale);

    /// Replaces what the library holds under that number. The index row in 图 is the caller's, so the name is
    /// ignored. Throws StoreError when a statement is refused, with what was executed before it kept.
    void SaveFileEx(Connection& connection, std::string_view number, std::string_view name) const;

    /// Adds the library's rows of that number to what the drawing holds; a number without rows adds nothing.
    /// Throws StoreError, and NumericError for a coordinate that is Null.
    void OpenFileEX(Connection& connection, std::string_view number);

    /// Writes a drawing file; see mc_file.h. Arcs are not in it. Throws FileError, and its kind CodePageError
    /// for a text that GBK does not hold; an existing file then stays as it was.
    void SavePicture(const std::filesystem::path& path) const;

    /// Reads a drawing file in place of all items but the arcs, which stay. Throws FileError with nothing
    /// changed when it cannot be read or is far too large, and NumericError as ReadMcText does.
    void Open_File(const std::filesystem::path& path);

    /// Reads a DXF file in place of all items. ImportDxf does the same and returns a summary.
    void InputDXF(const std::filesystem::path& path);

    /// Paints all items with the source box stretched over the destination box: lines, rectangles, arrows,
    /// dimension marks, texts, arcs, in this order. Throws NumericError for a source box without width or
    /// height.
    void PrintPic(PaintTarget& target, const Box& source, const Box& destination) const;

    /// As PrintPic without the texts: for pictures that carry values in their place.
    void OutMCNoStr(PaintTarget& target, const Box& source, const Box& destination) const;

    /// Prints the drawing in its own size as one document. A drawing that holds nothing but arcs counts as
    /// empty: that is reported and nothing is printed.
    void PrintPicture(PageTarget& page) const;

    /// Ends the document.
    static void PrintEnd(PageTarget& page) { page.EndDocument(); }

    /// Prints a component sheet: opens its drawing, as OpenFileEX adds to what is held, and paints the
    /// drawing without its texts, head, labels and table, continued on further pages. Does not end the
    /// document. Throws as OpenFileEX.
    void PrintTemplate01(PageTarget& page, Connection& connection, const ComponentSheet& sheet);

    /// Prints the bare drawing page: the drawing without its texts, and the labels.
    void PrintTemp02(PaintTarget& page, Connection& connection, std::string_view number,
                     std::span<const PageLabel> labels);

    // --- On the drawing desk: bind canvas, status bar and text dialog before anything below. They are not
    // owned and must outlive the drawing.

    void SetPicture(Canvas& canvas) { canvas_ = &canvas; }
    void SetStatu(StatusBar& statusBar) { statusBar_ = &statusBar; }
    void SetTextForm(TextForm& textForm) { textForm_ = &textForm; }

    /// Name of the tool in progress (drawing_tool.h), empty when idle.
    const std::string& GetCurDraw() const { return tool_.curDraw; }
    const ToolState& Tool() const { return tool_; }

    // The tools. Each paints on the canvas what it makes and shows in the status bar what it wants next. A
    // cancel returns any of them to idle and drops the transient shape; only that of the delete tool also
    // makes the line style solid again.

    /// A chain of lines from point to point, until it is cancelled.
    void StepDrawLine(ToolOp op, float x, float y);
    /// One rectangle by two corners.
    void StepDrawRec(ToolOp op, float x, float y);
    /// One arrow, tail first.
    void StepDrawDir(ToolOp op, float x, float y);
    /// One dimension mark by its two measured points and the place of the dimension line.
    void StepDrawDiM(ToolOp op, float x, float y);
    /// One text item: its place, then the text dialog, where an empty text gives it up.
    void StepDrawString(ToolOp op, float x, float y);
    /// Deletes everything with a stored point in the box between two corners, and repaints.
    void StepDel(ToolOp op, float x, float y);
    /// One arc by start, end and direction point.
    void StepDrawArc(ToolOp op, float x, float y);

    /// Paints the dots of a grid that divides the canvas into so many columns and rows.
    void Draw_Gird(std::int16_t columns, std::int16_t rows);

    /// Clears the canvas, paints the desk's grid and empties all six kinds.
    void PicClear();

    /// Clears the canvas and paints the drawing in its own size, then the desk's grid.
    void Repaint();

  private:
    struct ToolRule;
    void Step(const ToolRule& rule, ToolOp op, Point at);
    void CancelTool();
    void CancelDelete();
    void DeleteInBox();

    template <typename Item>
    void Add(PrimitiveList<Item>& list, const Item& item) {
        if (!list.Add(item)) ReportFull();
    }
    template <typename Item>
    static void DeleteIn(PrimitiveList<Item>& list, Point& cornerA, Point& cornerB) {
        list.DeleteWhere([&](const Item& item) {
            return std::ranges::any_of(
                item.Points(), [&](const Point& point) { return PointInBox(point, cornerA, cornerB); });
        });
    }
    void ReportFull() const;
    void Paint(PaintTarget& target, const Box& source, const Box& destination, bool withTexts) const;

    PrimitiveList<LineItem> lines_;
    PrimitiveList<RectangleItem> rectangles_;
    PrimitiveList<DimensionItem> dimensions_;
    PrimitiveList<ArrowItem> arrows_;
    PrimitiveList<TextItem> strings_;
    PrimitiveList<ArcItem> arcs_;
    float xScale_ = 1;
    float yScale_ = 1;
    Notice* notice_;
    ToolState tool_;
    Canvas* canvas_ = nullptr;
    StatusBar* statusBar_ = nullptr;
    TextForm* textForm_ = nullptr;
};

class CPictire::FullNoticeLimit {
  public:
    explicit FullNoticeLimit(CPictire& picture);
    FullNoticeLimit(const FullNoticeLimit&) = delete;
    FullNoticeLimit& operator=(const FullNoticeLimit&) = delete;
    ~FullNoticeLimit() { picture_.notice_ = all_; }

  private:
    CPictire& picture_;
    Notice* all_;
    NoticeLimit limited_;
};

}  // namespace kalvane
