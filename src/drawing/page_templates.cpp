#include "drawing/page_templates.h"

#include <algorithm>

#include "numeric/assertion.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

// The page is an upright A4 sheet; all positions are twips.
constexpr double kRowHeight = 397.39;
constexpr PageFont kFont{9};  // a line is 261 twips high and begins 100 below a rule
constexpr int kRowsInHalf = 23;
constexpr int kRowsInContinuationHalf = 33;

/// Text columns 1 to 5 of the left half, then those of the right: the rules left of them plus 100.
constexpr double kColumnX[] = {100,  667.71, 2180.12, 3716.67, 4854.5,
                               5600, 6345.5, 7483.33, 9019.88, 10532.29};

/// Where the cells end: at the rules right of them.
constexpr double kColumnEnd[] = {567.71, 2080.12, 3616.67, 4754.5,   5500,
                                 6245.5, 7383.33, 8919.88, 10432.29, 11000};
constexpr float kSmallestPoints = 5;

struct HeadPlace {
    const char* caption;
    double x;
    double y;
    double end;  ///< of its box
};
constexpr HeadPlace kHead[] = {
    {"工程名称", 6620, 1200, 11000},       {"定货单位", 6620, 1853, 11000},
    {"图    名", 6620, 2505.71, 11000},    {"合同编号", 6620, 3158.57, 8250},
    {"购件表号", 9370.29, 3158.57, 11000}, {"制作尺寸", 6620, 3811.43, 8250},
    {"樘    数", 9370.29, 3811.43, 11000}, {"设    计", 6620, 4464.29, 8250},
    {"日    期", 9370.29, 4464.14, 11000}, {"", 100, 5117.14, 5500},
    {"审    核", 6620, 5117.14, 8250},     {"校    对", 9370.29, 5117.14, 11000},
};
constexpr double kCaptionWidth = 1020;

/// Positions are worked out in 64 bits and painted in 32.
class Pen {
  public:
    explicit Pen(PageTarget& page) : page_(page) {}

    void Line(double x1, double y1, double x2, double y2) {
        page_.DrawLine(static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2),
                       static_cast<float>(y2));
    }
    void Text(double x, double y, const std::string& text) {
        page_.DrawText(static_cast<float>(x), static_cast<float>(y), text);
    }

    /// A text that would reach beyond `end` is printed smaller.
    void Text(double x, double y, double end, const std::string& text) {
        const double room = end - x;
        // A Chinese character, the widest, is as wide as the font is high.
        const double most = static_cast<double>(CharCount(text)) * kFont.points * kTwipsPerPoint;
        const double width = most <= room ? most : page_.TextWidth(text);
        if (width <= room) {
            Text(x, y, text);
            return;
        }
        const auto points = static_cast<float>(kFont.points * room / width);
        page_.SetFont({std::max(points, kSmallestPoints)});
        Text(x, y, text);
        page_.SetFont(kFont);
    }

  private:
    static constexpr double kTwipsPerPoint = 20;
    PageTarget& page_;
};

void PaintGrid(Pen& pen) {
    pen.Line(0, 1000, 11000, 1000);
    pen.Line(11000, 1000, 11000, 14710);
    pen.Line(11000, 14710, 0, 14710);
    pen.Line(0, 14710, 0, 1000);
    for (int i = 1; i <= 6; ++i) pen.Line(5500, i * 652.86 + 1000, 11000, i * 652.86 + 1000);
    for (int i = 0; i <= kRowsInHalf; ++i) pen.Line(0, i * kRowHeight + 5570, 11000, i * kRowHeight + 5570);
    pen.Line(5500, 1000, 5500, 14710);
    pen.Line(6520.29, 1000, 6520.29, 5570);
    pen.Line(8250, 2958.57, 8250, 5570);
    pen.Line(9270.29, 2958.57, 9270.29, 5570);
    for (const double x : {2080.12, 3616.67, 4754.5, 6245.5, 567.71, 7383.33, 8919.88, 10432.29}) {
        pen.Line(x, 5570, x, 14710);
    }
}

void PaintHead(Pen& pen, const std::array<std::string, 12>& titles) {
    for (const HeadPlace& place : kHead) pen.Text(place.x - kCaptionWidth, place.y, place.caption);
    for (std::size_t i = 0; i < titles.size(); ++i) pen.Text(kHead[i].x, kHead[i].y, kHead[i].end, titles[i]);
}

/// One half of the first page's table: 23 rows from behind `rowsBefore` on.
void PaintHalf(Pen& pen, const SheetTable& table, int rowsBefore, int columnsBefore) {
    for (int row = 1; row <= kRowsInHalf; ++row) {
        for (int column = 1; column <= SheetTable::kColumns; ++column) {
            const std::string& text = table.Cell(column, row + rowsBefore);
            if (text.empty()) continue;
            const int across = columnsBefore + column - 1;
            pen.Text(kColumnX[across], row * kRowHeight + 5271.3, kColumnEnd[across], text);
        }
    }
}

void PaintContinuationGrid(Pen& pen) {
    for (int i = 0; i <= kRowsInContinuationHalf; ++i) {
        pen.Line(0, i * kRowHeight + 1000, 11000, i * kRowHeight + 1000);
    }
    for (const double x :
         {0.0, 567.71, 2080.12, 3616.67, 4754.5, 5500.0, 6245.5, 7383.33, 8919.88, 10432.29, 11000.0}) {
        pen.Line(x, 1000, x, 14113.87);
    }
}

/// Pages with `count` rows of the table behind row `start`.
void PaintContinuation(PageTarget& page, const SheetTable& table, int start, int count) {
    Pen pen(page);
    const auto startPage = [&] {
        page.NewPage();
        PaintContinuationGrid(pen);
    };
    startPage();
    int place = 1;
    for (int k = 1; k <= count; ++k) {
        if (place > 2 * kRowsInContinuationHalf) {
            startPage();
            place = 1;
        }
        const bool isLeft = place <= kRowsInContinuationHalf;
        const int down = isLeft ? place - 1 : place - 1 - kRowsInContinuationHalf;
        for (int column = 1; column <= SheetTable::kColumns; ++column) {
            const int across = isLeft ? column - 1 : column - 1 + SheetTable::kColumns;
            pen.Text(kColumnX[across], down * kRowHeight + 1100, kColumnEnd[across],
                     table.Cell(column, start + k));
        }
        ++place;
    }
}

}  // namespace

PageLabel LabelOnPage(double px, double py, std::string text) {
    return {static_cast<float>(px * (5500.0 / 9495)), static_cast<float>(py * (3917.0 / 7935) + 1000),
            std::move(text)};
}

PageLabel LabelInBox(double px, double py, std::string text, const Box& box) {
    const auto along = [](double at, float from, float to, float frame) {
        return static_cast<float>(at * ((double{to} - double{from}) / double{frame}) + double{from});
    };
    return {along(px, box.x1, box.x2, kFrameWidth), along(py, box.y1, box.y2, kFrameHeight), std::move(text)};
}

void SheetTable::SetCell(int column, int row, std::string text) {
    KALVANE_ASSERT(column >= 1 && column <= kColumns && row >= 1);
    if (static_cast<std::size_t>(row) > rows_.size()) rows_.resize(static_cast<std::size_t>(row));
    rows_[static_cast<std::size_t>(row) - 1][static_cast<std::size_t>(column) - 1] = std::move(text);
}

const std::string& SheetTable::Cell(int column, int row) const {
    static const std::string kEmpty;
    KALVANE_ASSERT(column >= 1 && column <= kColumns && row >= 1);
    if (static_cast<std::size_t>(row) > rows_.size()) return kEmpty;
    return rows_[static_cast<std::size_t>(row) - 1][static_cast<std::size_t>(column) - 1];
}

void PaintComponentSheet(PageTarget& page, const ComponentSheet& sheet) {
    Pen pen(page);
    page.SetFont(kFont);
    PaintGrid(pen);
    PaintHead(pen, sheet.titles);
    PaintLabels(page, sheet.labels);
    PaintHalf(pen, sheet.table, 0, 0);
    PaintHalf(pen, sheet.table, kRowsInHalf, SheetTable::kColumns);
    pen.Text(500, 500, "制作单位：" + sheet.maker);
    constexpr int kRowsOnFirstPage = 2 * kRowsInHalf;
    if (sheet.rowCount > kRowsOnFirstPage) {
        PaintContinuation(page, sheet.table, kRowsOnFirstPage + 1, sheet.rowCount - kRowsOnFirstPage);
    }
}

void PaintLabels(PaintTarget& page, std::span<const PageLabel> labels) {
    for (const PageLabel& label : labels) {
        if (!label.text.empty()) page.DrawText(label.x, label.y, label.text);
    }
}

}  // namespace kalvane
