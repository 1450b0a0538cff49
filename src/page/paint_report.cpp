#include "page/paint_report.h"

#include <algorithm>
#include <utility>

#include "numeric/assertion.h"
#include "page/wrap_text.h"

namespace kalvane {
namespace {

// Twips.
constexpr float kPadX = 80;
constexpr float kPadY = 50;
constexpr float kLineGap = 60;  // above and below a line of the heading or the closing block
constexpr float kFootHeight = 450;
constexpr float kClosingGap = 200;

constexpr PageFont kTitleFont{16, true};
constexpr PageFont kLineFont{10, false};
constexpr PageFont kHeadFont{9, true};
constexpr PageFont kCellFont{9, false};
constexpr PageColour kHeadColour{238, 238, 238};

/// A box with lines of text; (x, y) is relative to its band.
struct Cell {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
    ReportAlign align = ReportAlign::Left;
    std::vector<std::string> lines;
};

/// A strip across the page.
struct Band {
    PageFont font;
    float lineHeight = 0;
    float pad = 0;  ///< above and below the lines
    float height = 0;
    bool isRuled = false;
    bool isShaded = false;
    std::vector<Cell> cells;
};

std::size_t LineCount(const Band& band) {
    std::size_t count = 1;
    for (const Cell& cell : band.cells) count = std::max(count, cell.lines.size());
    return count;
}

/// Gives a band and each of its cells the height of its lines.
void FitHeight(Band& band) {
    band.height = static_cast<float>(LineCount(band)) * band.lineHeight + 2 * band.pad;
    for (Cell& cell : band.cells) cell.height = band.height;
}

/// Takes the first `count` lines off a band as a band of their own.
Band TakeLines(Band& band, std::size_t count) {
    Band first = band;
    for (std::size_t i = 0; i < band.cells.size(); ++i) {
        std::vector<std::string>& rest = band.cells[i].lines;
        const auto middle = rest.begin() + static_cast<std::ptrdiff_t>(std::min(count, rest.size()));
        first.cells[i].lines.assign(rest.begin(), middle);
        rest.erase(rest.begin(), middle);
    }
    FitHeight(first);
    FitHeight(band);
    return first;
}

/// Makes the bands of a report, wrapped for a page.
class BandMaker {
  public:
    BandMaker(PageTarget& page, const std::vector<ReportColumn>& columns) : page_(page), columns_(columns) {
        float shares = 0;
        for (const ReportColumn& column : columns) shares += column.share;
        float x = 0;
        for (const ReportColumn& column : columns) {
            lefts_.push_back(x);
            x += page.Width() * column.share / shares;
        }
        lefts_.push_back(page.Width());
    }

    Band Title(const std::string& title) {
        Band band = Start(kTitleFont, 2 * kLineGap);
        AddCell(band, 0, page_.Width(), ReportAlign::Centre, title);
        FitHeight(band);
        return band;
    }

    Band Line(const ReportLine& texts) {
        Band band = Start(kLineFont, kLineGap);
        const float width = page_.Width() / static_cast<float>(std::max<std::size_t>(1, texts.size()));
        for (std::size_t i = 0; i < texts.size(); ++i) {
            AddCell(band, width * static_cast<float>(i), width, ReportAlign::Left, texts[i]);
        }
        FitHeight(band);
        return band;
    }

    Band Row(const std::vector<std::string>& texts, PageFont font) {
        KALVANE_ASSERT(texts.size() == columns_.size());
        Band band = Start(font, kPadY);
        band.isRuled = true;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            AddCell(band, lefts_[i], lefts_[i + 1] - lefts_[i], columns_[i].align, texts[i]);
        }
        FitHeight(band);
        return band;
    }

    /// The column heads: those of groups in a strip of their own above the heads they cover.
    Band Heads() {
        Band groups = Start(kHeadFont, kPadY);
        Band heads = Start(kHeadFont, kPadY);
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            AddCell(heads, lefts_[i], lefts_[i + 1] - lefts_[i], ReportAlign::Centre, columns_[i].head);
            const std::string& group = columns_[i].group;
            if (group.empty()) continue;
            if (i == 0 || columns_[i - 1].group != group) {
                std::size_t end = i;
                while (end < columns_.size() && columns_[end].group == group) ++end;
                AddCell(groups, lefts_[i], lefts_[end] - lefts_[i], ReportAlign::Centre, group);
            }
        }
        FitHeight(groups);
        FitHeight(heads);
        heads.isRuled = true;
        heads.isShaded = true;
        if (groups.cells.empty()) return heads;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            Cell& cell = heads.cells[i];
            if (columns_[i].group.empty()) {
                cell.height += groups.height;
            } else {
                cell.y = groups.height;
            }
        }
        heads.height += groups.height;
        heads.cells.insert(heads.cells.end(), groups.cells.begin(), groups.cells.end());
        return heads;
    }

  private:
    Band Start(PageFont font, float pad) {
        page_.SetFont(font);
        Band band;
        band.font = font;
        band.lineHeight = page_.TextHeight("国");
        band.pad = pad;
        return band;
    }

    void AddCell(Band& band, float x, float width, ReportAlign align, const std::string& text) {
        Cell cell{.x = x, .width = width, .align = align, .lines = WrapText(page_, text, width - 2 * kPadX)};
        band.cells.push_back(std::move(cell));
    }

    PageTarget& page_;
    const std::vector<ReportColumn>& columns_;
    std::vector<float> lefts_;  ///< of the columns, and the right edge of the last
};

struct Placed {
    float y;
    Band band;
};

/// Distributes bands to pages.
class Flow {
  public:
    /// `opening` begins each further page.
    Flow(float height, std::vector<Band> opening) : height_(height), opening_(std::move(opening)) {}

    /// Begins a page unless the next bands of that height in all have room on this one.
    void KeepTogether(float height) {
        if (y_ > 0 && y_ + height > height_) NewPage(nullptr);
    }

    void AddSpace(float height) { y_ += height; }

    /// Adds a band; `head`, if any, opens each page that is begun for it.
    void Add(Band band, const Band* head = nullptr) {
        const float headHeight = head != nullptr ? head->height : 0;
        float start = headHeight;  // of a further page
        for (const Band& line : opening_) start += line.height;
        for (;;) {
            if (y_ + band.height <= height_) {
                Place(std::move(band));
                return;
            }
            const bool isFresh = y_ <= std::max(freshY_, headHeight);
            if (!isFresh && start + band.height <= height_) {
                NewPage(head);
                continue;
            }
            const float room = height_ - y_ - 2 * band.pad;
            auto fitting = static_cast<std::size_t>(std::max(0.0F, room / band.lineHeight));
            if (isFresh) fitting = std::max<std::size_t>(1, fitting);  // so that it ends
            if (fitting >= LineCount(band)) {
                Place(std::move(band));
                return;
            }
            if (fitting > 0) Place(TakeLines(band, fitting));
            NewPage(head);
        }
    }

    const std::vector<std::vector<Placed>>& Pages() const { return pages_; }

  private:
    void Place(Band band) {
        const float height = band.height;
        pages_.back().push_back({y_, std::move(band)});
        y_ += height;
    }

    void NewPage(const Band* head) {
        pages_.emplace_back();
        y_ = 0;
        for (const Band& line : opening_) Place(line);
        if (head != nullptr) Place(*head);
        freshY_ = y_;
    }

    float height_;
    std::vector<Band> opening_;
    float y_ = 0;
    float freshY_ = 0;  ///< where the page's own content begins
    std::vector<std::vector<Placed>> pages_ = std::vector<std::vector<Placed>>(1);
};

float Aligned(PageTarget& page, const Cell& cell, const std::string& line) {
    const float left = cell.x + kPadX;
    if (cell.align == ReportAlign::Left) return left;
    const float room = cell.width - 2 * kPadX - page.TextWidth(line);
    return left + (cell.align == ReportAlign::Right ? room : room / 2);
}

/// A cell's left and lower rule are its own; the band adds the right and, at the top of a table, the upper.
void PaintBand(PageTarget& page, const Placed& placed, bool beginsTable) {
    const Band& band = placed.band;
    const float top = placed.y;
    const float bottom = top + band.height;
    const float right = page.Width();
    if (band.isShaded) page.FillBox({0, top, right, bottom}, kHeadColour);
    if (band.isRuled) {
        if (beginsTable) page.DrawLine(0, top, right, top);
        for (const Cell& cell : band.cells) {
            const float cellTop = top + cell.y;
            const float cellBottom = cellTop + cell.height;
            page.DrawLine(cell.x, cellTop, cell.x, cellBottom);
            page.DrawLine(cell.x, cellBottom, cell.x + cell.width, cellBottom);
        }
        page.DrawLine(right, top, right, bottom);
    }
    page.SetFont(band.font);
    for (const Cell& cell : band.cells) {
        const float text = static_cast<float>(cell.lines.size()) * band.lineHeight;
        float y = top + cell.y + (cell.height - text) / 2;
        for (const std::string& line : cell.lines) {
            if (!line.empty()) page.DrawText(Aligned(page, cell, line), y, line);
            y += band.lineHeight;
        }
    }
}

void PaintFoot(PageTarget& page, const std::string& title, std::size_t number, std::size_t count) {
    page.SetFont(kCellFont);
    const float y = page.Height() - page.TextHeight("国");
    page.DrawText(kPadX, y, title);
    const std::string place = "第 " + std::to_string(number) + " 页，共 " + std::to_string(count) + " 页";
    page.DrawText(page.Width() - kPadX - page.TextWidth(place), y, place);
}

}  // namespace

void PaintReport(PageTarget& page, const Report& report) {
    BandMaker maker(page, report.columns);
    std::vector<Band> opening;
    for (const ReportLine& line : report.repeated) opening.push_back(maker.Line(line));
    Flow flow(page.Height() - kFootHeight, std::move(opening));
    if (!report.title.empty()) flow.Add(maker.Title(report.title));
    for (const ReportLine& line : report.heading) flow.Add(maker.Line(line));
    if (!report.columns.empty()) {
        const Band heads = maker.Heads();
        std::vector<Band> rows;
        for (const auto& row : report.rows) rows.push_back(maker.Row(row, kCellFont));
        if (!report.totals.empty()) rows.push_back(maker.Row(report.totals, kHeadFont));
        flow.KeepTogether(heads.height + (rows.empty() ? 0 : rows.front().height));
        flow.Add(heads);
        for (Band& row : rows) flow.Add(std::move(row), &heads);
    }
    if (!report.closing.empty()) flow.AddSpace(kClosingGap);
    for (const ReportLine& line : report.closing) flow.Add(maker.Line(line));

    const auto& pages = flow.Pages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) page.NewPage();
        bool inTable = false;
        for (const Placed& placed : pages[i]) {
            PaintBand(page, placed, !inTable);
            inTable = placed.band.isRuled;
        }
        PaintFoot(page, report.title, i + 1, pages.size());
    }
    page.EndDocument();
}

}  // namespace kalvane
