#include "drawing/cpictire.h"

#include <utility>

#include "drawing/box_mapping.h"
#include "drawing/drawing_library.h"
#include "drawing/dxf_import.h"
#include "drawing/mc_file.h"
#include "drawing/shapes.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/notice.h"

namespace kalvane {
namespace {

constexpr int kMostFullNotices = 50;
constexpr std::uintmax_t kLargestFile = 64U << 20U;  // a full drawing takes a tenth of a megabyte

}  // namespace

void CPictire::ReportFull() const {
    notice_->Show("数组超出范围,请与程序员联系", "#Error", NoticeIcon::None);
}

CPictire::FullNoticeLimit::FullNoticeLimit(CPictire& picture)
    : picture_(picture),
      all_(picture.notice_),
      limited_(*all_, kMostFullNotices, "后面还有超出范围的图元，不再逐个提示。") {
    picture_.notice_ = &limited_;
}

bool CPictire::PointInBox(Point point, Point& cornerA, Point& cornerB) {
    if (cornerA.x > cornerB.x) std::swap(cornerA.x, cornerB.x);
    if (cornerA.y > cornerB.y) std::swap(cornerA.y, cornerB.y);
    return cornerA.x <= point.x && point.x <= cornerB.x && cornerA.y <= point.y && point.y <= cornerB.y;
}

void CPictire::ClearData() {
    lines_.Clear();
    rectangles_.Clear();
    dimensions_.Clear();
    arrows_.Clear();
    strings_.Clear();
    arcs_.Clear();
}

DrawingItems CPictire::Items() const {
    return {{lines_.begin(), lines_.end()},           {rectangles_.begin(), rectangles_.end()},
            {dimensions_.begin(), dimensions_.end()}, {arrows_.begin(), arrows_.end()},
            {strings_.begin(), strings_.end()},       {arcs_.begin(), arcs_.end()}};
}

void CPictire::SetItems(const DrawingItems& items) {
    ClearData();
    for (const LineItem& item : items.lines) AddLine(item);
    for (const RectangleItem& item : items.rectangles) AddRec(item);
    for (const DimensionItem& item : items.dimensions) AddDim(item);
    for (const ArrowItem& item : items.arrows) AddDir(item);
    for (const TextItem& item : items.strings) AddString(item);
    for (const ArcItem& item : items.arcs) AddArc(item);
}

void CPictire::GetStrings(std::span<float> xs, std::span<float> ys, std::span<std::string> texts) const {
    const auto count = static_cast<std::size_t>(strings_.Count());
    KALVANE_ASSERT(xs.size() >= count && ys.size() >= count && texts.size() >= count);
    for (std::size_t i = 0; i < count; ++i) {
        const TextItem& item = strings_[static_cast<int>(i)];
        xs[i] = item.at.x;
        ys[i] = item.at.y;
        texts[i] = item.text;
    }
}

void CPictire::SetXY(float xScale, float yScale) {
    xScale_ = xScale;
    yScale_ = yScale;
}

void CPictire::SaveFileEx(Connection& connection, std::string_view number, std::string_view) const {
    SavePrimitives(connection, number, *this);
}

void CPictire::OpenFileEX(Connection& connection, std::string_view number) {
    const FullNoticeLimit limit(*this);
    LoadPrimitives(connection, number, *this);
}

void CPictire::SavePicture(const std::filesystem::path& path) const {
    WriteFileAtomically(path, ToGbk(McText(*this)));
}

void CPictire::Open_File(const std::filesystem::path& path) {
    RequirePlainFile(path, kLargestFile);
    const std::string text = DecodeFileText(ReadFile(path));
    lines_.Clear();
    rectangles_.Clear();
    dimensions_.Clear();
    arrows_.Clear();
    strings_.Clear();
    const FullNoticeLimit limit(*this);
    ReadMcText(text, *this);
}

void CPictire::InputDXF(const std::filesystem::path& path) {
    ImportDxf(path, *this);
}

void CPictire::PrintPic(PaintTarget& target, const Box& source, const Box& destination) const {
    Paint(target, source, destination, true);
}

void CPictire::OutMCNoStr(PaintTarget& target, const Box& source, const Box& destination) const {
    Paint(target, source, destination, false);
}

void CPictire::PrintPicture(PageTarget& page) const {
    if (lines_.Empty() && rectangles_.Empty() && arrows_.Empty() && dimensions_.Empty() && strings_.Empty()) {
        notice_->Show("图形为空!", "#Error", NoticeIcon::None);
        return;
    }
    PrintPic(page, kFrame, kFrame);
    PrintEnd(page);
}

void CPictire::PrintTemplate01(PageTarget& page, Connection& connection, const ComponentSheet& sheet) {
    OpenFileEX(connection, sheet.drawingNumber);
    OutMCNoStr(page, kFrame, sheet.drawingBox);
    PaintComponentSheet(page, sheet);
}

void CPictire::PrintTemp02(PaintTarget& page, Connection& connection, std::string_view number,
                           std::span<const PageLabel> labels) {
    OpenFileEX(connection, number);
    OutMCNoStr(page, kFrame, kDrawingPageBox);
    PaintLabels(page, labels);
}

void CPictire::Paint(PaintTarget& target, const Box& source, const Box& destination, bool withTexts) const {
    const BoxMapping map(source, destination);
    for (const LineItem& item : lines_) DrawStroke(target, map(item.p1), map(item.p2));
    for (const RectangleItem& item : rectangles_) DrawRectangle(target, map(item.p1), map(item.p2));
    for (const ArrowItem& item : arrows_) DrawArrow(target, map(item.p1), map(item.p2));
    for (const DimensionItem& item : dimensions_) {
        DrawDim(target, map(item.p1), map(item.p2), map(item.p3));
    }
    if (withTexts) {
        for (const TextItem& item : strings_) {
            const Point at = map(item.at);
            Draw_String(target, at.x, at.y, item.text);
        }
    }
    for (const ArcItem& item : arcs_) {
        // Looked at before the mapping: its rounding would bend a straight arc to a circle of any size.
        if (AreInLine(item.p1, item.p2, item.p3)) continue;
        DrawArc(target, map(item.p1), map(item.p2), map(item.p3));
    }
}

}  // namespace kalvane
