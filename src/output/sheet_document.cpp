#include "output/sheet_document.h"

#include <algorithm>

#include "drawing/mcpicture.h"
#include "numeric/assertion.h"

namespace kalvane {
namespace {

/// A page whose further pages say in their upper margin what they continue.
class MarkedPages final : public PageTarget {
  public:
    /// `page` must outlive this.
    MarkedPages(PageTarget& page, std::string mark) : page_(page), mark_(std::move(mark)) {}

    float Width() const override { return page_.Width(); }
    float Height() const override { return page_.Height(); }
    void SetFont(PageFont font) override { page_.SetFont(font); }
    float TextWidth(std::string_view text) const override { return page_.TextWidth(text); }
    float TextHeight(std::string_view text) const override { return page_.TextHeight(text); }
    void DrawLine(float x1, float y1, float x2, float y2) override { page_.DrawLine(x1, y1, x2, y2); }
    void DrawText(float x, float y, std::string_view text) override { page_.DrawText(x, y, text); }
    void FillBox(const Box& box, PageColour colour) override { page_.FillBox(box, colour); }
    void EndDocument() override { page_.EndDocument(); }

    void NewPage() override {
        page_.NewPage();
        ++number_;
        constexpr float kMarkPlace = 500;  // where the first page has the workshop's name
        page_.DrawText(kMarkPlace, kMarkPlace, mark_ + "（续" + std::to_string(number_) + "）");
    }

  private:
    PageTarget& page_;
    std::string mark_;
    int number_ = 0;
};

/// The largest box of the frame's shape in the middle of `box`.
Box OfFrameShape(const Box& box) {
    const double scale = std::min((double{box.x2} - double{box.x1}) / double{kFrameWidth},
                                  (double{box.y2} - double{box.y1}) / double{kFrameHeight});
    const double width = scale * double{kFrameWidth};
    const double height = scale * double{kFrameHeight};
    const double left = (double{box.x1} + double{box.x2} - width) / 2;
    const double top = (double{box.y1} + double{box.y2} - height) / 2;
    return {static_cast<float>(left), static_cast<float>(top), static_cast<float>(left + width),
            static_cast<float>(top + height)};
}

/// The labels at their places in another box.
std::vector<PageLabel> LabelsIn(const Box& box, const LabelSet& labels) {
    std::vector<PageLabel> placed;
    for (std::size_t i = 0; i < labels.names.size(); ++i) {
        placed.push_back(LabelInBox(labels.px[i], labels.py[i], labels.values[i], box));
    }
    return placed;
}

/// Project, number of the sheet, and the window.
std::string MarkOf(const ComponentSheet& page) {
    return page.titles[0] + "  " + page.titles[4] + "  " + page.titles[2];
}

}  // namespace

void PaintSheetDrawing(PageTarget& target, Connection& connection, const WorkedOutSheet& sheet,
                       const SheetOptions& options, Notice& notice) {
    MCPicture picture(notice);
    if (!options.keepsShape) {
        picture.PrintTMP02(target, connection, sheet.page.drawingNumber, sheet.page.labels);
        return;
    }
    const Box box = OfFrameShape(kDrawingPageBox);
    picture.OpenFileEX(connection, sheet.page.drawingNumber);
    picture.OutMCNoStr(target, box);
    PaintLabels(target, LabelsIn(box, sheet.labels));
}

void PaintSheet(PageTarget& target, Connection& connection, const WorkedOutSheet& sheet,
                const SheetOptions& options, Notice& notice) {
    ComponentSheet page = ForPrinting(sheet.page);
    if (options.keepsShape) {
        page.drawingBox = OfFrameShape(kSheetDrawingBox);
        page.labels = LabelsIn(page.drawingBox, sheet.labels);
    }
    MCPicture picture(notice);
    if (options.marksPages) {
        MarkedPages marked(target, MarkOf(page));
        picture.PrintTMP(marked, connection, page);
    } else {
        picture.PrintTMP(target, connection, page);
    }
}

WorkedOutSheet SheetSet::Sheet(int page) const {
    KALVANE_ASSERT(page >= 1 && page <= PageCount());
    return WorkOutSheet(connection_, projectRow_, origin_, windows_[static_cast<std::size_t>(page) - 1],
                        page);
}

void SheetSet::Print(PageTarget& target, int first, int last, const SheetOptions& options,
                     Notice& notice) const {
    for (int page = first; page <= last; ++page) {
        if (page > first) target.NewPage();
        PaintSheet(target, connection_, Sheet(page), options, notice);
    }
    target.EndDocument();
}

}  // namespace kalvane
