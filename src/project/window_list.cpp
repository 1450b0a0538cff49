#include "project/window_list.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "design/window_type_tree.h"
#include "drawing/mcpicture.h"
#include "formula/composite.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "page/scaled_picture.h"
#include "page/wrap_text.h"
#include "project/composite_windows.h"

namespace kalvane {
namespace {

constexpr double kSquareMillimetres = 1e6;  // of a square metre

// Twips.
constexpr std::size_t kCellsInRow = 4;
constexpr float kPad = 90;
constexpr float kTitleHeight = 640;
constexpr float kFootHeight = 450;
constexpr float kSignatureHeight = 900;
constexpr std::size_t kLinesInCell = 4;

constexpr PageFont kTitleFont{16, true};
constexpr PageFont kTextFont{9, false};
constexpr PageFont kNameFont{9, true};
/// As large as keeps the values clear of the lines at this scale.
constexpr PageFont kLabelFont{5, false};

std::string SquareMetres(double area) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.2f㎡", area);
    return text.data();
}

double AreaOf(const WindowEntry& window) {
    return Val(window.width) * Val(window.height) / kSquareMillimetres;
}

/// The drawing, or none where it cannot be told: the list is printed all the same.
template <typename Find>
std::string DrawingOrNone(const Find& find) {
    try {
        return find();
    } catch (const StoreError&) {
        return {};
    }
}

WindowListCell CellOf(Connection& connection, const WindowEntry& window) {
    const double area = AreaOf(window);
    return {
        DrawingOrNone([&] { return DrawingOfWindow(connection, window); }),
        LoadLabels(connection, window.number),
        {window.name + "　" + window.position, window.width + "×" + window.height,
         window.count + " 樘　每樘 " + SquareMetres(area), "面积 " + SquareMetres(area * Val(window.count))}};
}

WindowListCell CellOf(Connection& connection, const WindowEntry& composite, const CompositeMember& member) {
    FieldSlots slots;
    return {DrawingOrNone([&] { return DrawingOfWindowType(connection, member.tag, slots); }),
            LoadMemberRows(connection, member, composite.number),
            {"└ " + member.name, "属 " + composite.name,
             "每樘 " + LoadMemberCount(connection, member, composite.number) + " 个"}};
}

/// Prints the cells in rows, a page after the other.
class ListPainter {
  public:
    ListPainter(PageTarget& page, Connection& connection, const WindowList& list, Notice& notice)
        : page_(page),
          connection_(connection),
          list_(list),
          notice_(notice),
          cellWidth_(page.Width() / kCellsInRow),
          pictureWidth_(cellWidth_ - 2 * kPad),
          pictureHeight_(pictureWidth_ * kFrameHeight / kFrameWidth) {
        page_.SetFont(kTextFont);
        lineHeight_ = page_.TextHeight("国");
        cellHeight_ = pictureHeight_ + kLinesInCell * lineHeight_ + 3 * kPad;
    }

    void Paint() {
        const float room = page_.Height() - kTitleHeight - kFootHeight;
        const auto rowsOnPage = std::max<std::size_t>(1, static_cast<std::size_t>(room / cellHeight_));
        const std::size_t rows = (list_.cells.size() + kCellsInRow - 1) / kCellsInRow;
        const std::size_t fullPages = rows == 0 ? 0 : (rows - 1) / rowsOnPage;
        const float left = room - static_cast<float>(rows - fullPages * rowsOnPage) * cellHeight_;
        const std::size_t pages = fullPages + (left >= kSignatureHeight ? 1 : 2);
        for (std::size_t number = 1; number <= pages; ++number) {
            if (number > 1) page_.NewPage();
            PaintHeadAndFoot(number, pages);
            float y = kTitleHeight;
            for (std::size_t row = (number - 1) * rowsOnPage; row < std::min(rows, number * rowsOnPage);
                 ++row) {
                PaintRow(row, y);
                y += cellHeight_;
            }
            if (number == pages) PaintSignature(y);
        }
        page_.EndDocument();
    }

  private:
    void PaintHeadAndFoot(std::size_t number, std::size_t pages) {
        const std::string title = "门窗表";
        page_.SetFont(kTitleFont);
        page_.DrawText((page_.Width() - page_.TextWidth(title)) / 2, 0, title);
        page_.SetFont(kTextFont);
        page_.DrawText(0, kTitleHeight - lineHeight_ - kPad / 2, "工程：" + list_.projectName);
        const float foot = page_.Height() - lineHeight_;
        page_.DrawText(0, foot, title + "　" + list_.projectName);
        const std::string place = "第 " + std::to_string(number) + " 页，共 " + std::to_string(pages) + " 页";
        page_.DrawText(page_.Width() - page_.TextWidth(place), foot, place);
    }

    void PaintRow(std::size_t row, float y) {
        for (std::size_t column = 0; column < kCellsInRow; ++column) {
            const std::size_t index = row * kCellsInRow + column;
            if (index >= list_.cells.size()) return;
            PaintCell(list_.cells[index], static_cast<float>(column) * cellWidth_, y);
        }
    }

    void PaintCell(const WindowListCell& cell, float x, float y) {
        const float right = x + cellWidth_;
        const float bottom = y + cellHeight_;
        page_.DrawLine(x, y, right, y);
        page_.DrawLine(right, y, right, bottom);
        page_.DrawLine(right, bottom, x, bottom);
        page_.DrawLine(x, bottom, x, y);
        if (!cell.drawing.empty()) PaintPicture(cell, x + kPad, y + kPad);
        y += pictureHeight_ + 2 * kPad;
        for (std::size_t line = 0; line < cell.lines.size(); ++line) {
            page_.SetFont(line == 0 ? kNameFont : kTextFont);
            // What is too long for its cell ends where the cell does.
            const std::vector<std::string> fitting = WrapText(page_, cell.lines[line], pictureWidth_);
            if (!fitting.empty()) page_.DrawText(x + kPad, y, fitting.front());
            y += lineHeight_;
        }
    }

    void PaintPicture(const WindowListCell& cell, float x, float y) {
        MCPicture picture(notice_);
        picture.OpenFileEX(connection_, cell.drawing);
        page_.SetFont(kLabelFont);
        ScaledPicture small(page_, {x, y, x + pictureWidth_, y + pictureHeight_});
        picture.OutMCNoStr(small, kFrame);
        for (const WindowLabel& label : PaintedLabels(cell.labels)) {
            small.DrawText(static_cast<float>(label.px), static_cast<float>(label.py), label.value);
        }
    }

    void PaintSignature(float y) {
        page_.SetFont(kNameFont);
        page_.DrawText(0, y + 2 * kPad, list_.total);
        page_.SetFont(kTextFont);
        const float line = y + 2 * kPad + 2 * lineHeight_;
        page_.DrawText(0, line, "以上门窗的式样、尺寸和数量核对无误。");
        page_.DrawText(page_.Width() / 2, line, "需方签章：");
        page_.DrawText(page_.Width() * 3 / 4, line, "日期：");
    }

    PageTarget& page_;
    Connection& connection_;
    const WindowList& list_;
    Notice& notice_;
    float cellWidth_;
    float pictureWidth_;
    float pictureHeight_;
    float lineHeight_ = 0;
    float cellHeight_ = 0;
};

}  // namespace

std::string DrawingOfWindow(Connection& connection, const WindowEntry& window) {
    if (IsComposite(window.typeNumber)) return ShortText(-Val(window.typeNumber));
    FieldSlots slots;
    return DrawingOfWindowType(connection, window.typeNumber, slots);
}

WindowList MakeWindowList(Connection& connection, const std::string& projectName,
                          std::span<const WindowEntry> windows) {
    WindowList list;
    list.projectName = projectName;
    double count = 0;
    double area = 0;
    for (const WindowEntry& window : windows) {
        list.cells.push_back(CellOf(connection, window));
        count += Val(window.count);
        area += AreaOf(window) * Val(window.count);
        if (!IsComposite(window.typeNumber)) continue;
        for (const CompositeMember& member : ListMembers(connection, window.number)) {
            list.cells.push_back(CellOf(connection, window, member));
        }
    }
    list.total = "合计：" + ShortText(count) + " 樘，面积 " + SquareMetres(area);
    return list;
}

void PaintWindowList(PageTarget& page, Connection& connection, const WindowList& list, Notice& notice) {
    ListPainter(page, connection, list, notice).Paint();
}

}  // namespace kalvane
