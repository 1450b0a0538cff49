#include "output/short_table_pages.h"

#include "drawing/mcpicture.h"
#include "page/wrap_text.h"

namespace kalvane {
namespace {

// The sheet is an upright A4 one; all lengths are millimetres until they are painted.
constexpr double kTwipsPerMillimetre = 56.69;
constexpr double kLeft = 5;
constexpr double kRight = 201;
constexpr double kHeadTop = 52;
constexpr double kTableTop = 60;
constexpr double kBand = 8;
constexpr int kBands = 18;
constexpr double kTableBottom = kTableTop + kBands * kBand;  // 204
constexpr double kBoxBottom = 244;
constexpr double kCaptionTop = 246;
constexpr double kBoxWidth = 49;
constexpr double kTitleTop = 15;
constexpr double kSignatureTop = 268;
constexpr PageFont kTextFont{9};
constexpr float kTitlePoints = 18;

/// Left edges of number, size and pieces, then of length and count of the six profiles; the right edge.
constexpr double kColumns[] = {kLeft, 15, 41, 51, 66, 76, 91, 101, 116, 126, 141, 151, 166, 176, 191, kRight};
constexpr std::size_t kColumnCount = std::size(kColumns) - 1;

class Pen {
  public:
    explicit Pen(PageTarget& page) : page_(page) {}

    static float Twips(double millimetres) { return static_cast<float>(millimetres * kTwipsPerMillimetre); }

    void Line(double x1, double y1, double x2, double y2) {
        page_.DrawLine(Twips(x1), Twips(y1), Twips(x2), Twips(y2));
    }
    void Text(double x, double y, const std::string& text) { page_.DrawText(Twips(x), Twips(y), text); }

    /// In the middle of a band.
    void Centred(double left, double right, double top, const std::string& text) {
        if (text.empty()) return;
        const float x = (Twips(left) + Twips(right) - page_.TextWidth(text)) / 2;
        const float y = (Twips(top) + Twips(top + kBand) - page_.TextHeight(text)) / 2;
        page_.DrawText(x, y, text);
    }

    /// From a place downwards, in as many lines as its width asks for.
    void Wrapped(double x, double y, double width, const std::string& text) {
        float top = Twips(y);
        for (const std::string& line : WrapText(page_, text, Twips(width))) {
            page_.DrawText(Twips(x), top, line);
            top += page_.TextHeight(line);
        }
    }

  private:
    PageTarget& page_;
};

/// Title and what is filled in by hand, all of it bold.
void PaintHead(PageTarget& page, Pen& pen, const std::string& projectName) {
    page.SetFont({kTitlePoints, true});
    const char* const title = "门 窗 简 料 单";
    page.DrawText((Pen::Twips(kLeft) + Pen::Twips(kRight) - page.TextWidth(title)) / 2, Pen::Twips(kTitleTop),
                  title);
    page.SetFont({kTextFont.points, true});
    pen.Text(kLeft, 30, "工程名称：" + projectName);
    pen.Text(kLeft, 37, "交货时间：");
    pen.Text(kLeft, 44, "备    注：");
    pen.Text(kLeft, kSignatureTop, "下料人：");
    pen.Text(71, kSignatureTop, "制作人：");
    pen.Text(137, kSignatureTop, "下料时间：");
    page.SetFont(kTextFont);
}

void PaintTable(Pen& pen, const SimpleBuyTable& table, int page) {
    pen.Centred(kColumns[0], kColumns[1], kHeadTop, "序号");
    pen.Centred(kColumns[1], kColumns[2], kHeadTop, "尺寸规格");
    pen.Centred(kColumns[2], kColumns[3], kHeadTop, "樘数");
    for (std::size_t key = 0; key < kKeyNames.size(); ++key) {
        pen.Centred(kColumns[3 + 2 * key], kColumns[5 + 2 * key], kHeadTop, kKeyNames[key]);
    }
    for (const ShortLine& line : LinesOf(table, page)) {
        const double top = kTableTop + (line.number - 1) * kBand;
        pen.Centred(kColumns[0], kColumns[1], top, std::to_string(line.number));
        for (std::size_t i = 0; i < line.record->size(); ++i) {
            pen.Centred(kColumns[i + 1], kColumns[i + 2], top, (*line.record)[i]);
        }
    }
}

void PaintBoxes(PageTarget& page, Pen& pen, const std::vector<ShortBox>& boxes, Connection& connection,
                Notice& notice) {
    double left = kLeft;
    for (const ShortBox& box : boxes) {
        MCPicture picture(notice);
        picture.OpenFileEX(connection, box.picture->drawingNumber);
        picture.OutMCNoStr(page, {Pen::Twips(left), Pen::Twips(kTableBottom), Pen::Twips(left + kBoxWidth),
                                  Pen::Twips(kBoxBottom)});
        pen.Wrapped(left, kCaptionTop, kBoxWidth - 1, box.caption);
        left += kBoxWidth;
    }
}

void PaintGrid(Pen& pen) {
    pen.Line(kLeft, kHeadTop, kRight, kHeadTop);
    for (int band = 0; band <= kBands; ++band) {
        pen.Line(kLeft, kTableTop + band * kBand, kRight, kTableTop + band * kBand);
    }
    pen.Line(kLeft, kBoxBottom, kRight, kBoxBottom);
    for (std::size_t i = 0; i <= kColumnCount; ++i) {
        // The heading of a length and its count is one.
        const bool isInPair = i > 3 && i % 2 == 0;
        pen.Line(kColumns[i], isInPair ? kTableTop : kHeadTop, kColumns[i], kTableBottom);
    }
    for (int box = 0; box <= 4; ++box) {
        const double x = kLeft + box * kBoxWidth;
        pen.Line(x, kTableBottom, x, kBoxBottom);
    }
}

}  // namespace

std::vector<ShortLine> LinesOf(const SimpleBuyTable& table, int page) {
    const BuyPage& bounds = table.Pages()[static_cast<std::size_t>(page) - 1];
    std::vector<ShortLine> lines;
    for (int i = bounds.firstLine; i <= bounds.lastLine; ++i) {
        lines.push_back({i - bounds.firstLine + 1, &table.Records()[static_cast<std::size_t>(i)]});
    }
    return lines;
}

std::vector<ShortBox> BoxesOf(const SimpleBuyTable& table, int page) {
    const BuyPage& bounds = table.Pages()[static_cast<std::size_t>(page) - 1];
    std::vector<ShortBox> boxes;
    int first = 1;
    for (int i = bounds.firstBox; i <= bounds.lastBox; ++i) {
        const BuyPicture& picture = table.Pictures()[static_cast<std::size_t>(i)];
        const int last = first + picture.count - 1;
        boxes.push_back(
            {&picture, std::to_string(first) + "~" + std::to_string(last) + "为:" + picture.name});
        first = last + 1;
    }
    return boxes;
}

void SimpleBuyTable::OutToObject(PageTarget& surface, Connection& connection, Notice& notice,
                                 int page) const {
    if (page < 1 || page > static_cast<int>(pages_.size())) return;
    Pen pen(surface);
    PaintHead(surface, pen, ProjectName);
    PaintTable(pen, *this, page);
    PaintBoxes(surface, pen, BoxesOf(*this, page), connection, notice);
    PaintGrid(pen);
}

void SimpleBuyTable::PrintPage(PageTarget& target, Connection& connection, Notice& notice, int page) const {
    if (page < 1 || page > static_cast<int>(pages_.size())) return;
    OutToObject(target, connection, notice, page);
    target.EndDocument();
}

void SimpleBuyTable::PrintPageAll(PageTarget& target, Connection& connection, Notice& notice) const {
    if (pages_.empty()) return;
    for (int page = 1; page <= static_cast<int>(pages_.size()); ++page) {
        if (page > 1) target.NewPage();
        OutToObject(target, connection, notice, page);
    }
    target.EndDocument();
}

}  // namespace kalvane
