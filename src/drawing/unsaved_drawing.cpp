#include "drawing/unsaved_drawing.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::string_view kNumber = "Number";
constexpr std::string_view kName = "Name";
constexpr std::string_view kLine = "Line";
constexpr std::string_view kRectangle = "Rec";
constexpr std::string_view kArrow = "Dir";
constexpr std::string_view kDimension = "Dim";
constexpr std::string_view kString = "String";
constexpr std::string_view kArc = "Arc";

void AppendNumber(std::string& text, float value) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(digits.data(), end);
}

void AppendPoints(std::string& text, std::initializer_list<Point> points) {
    for (const Point& point : points) {
        text += ' ';
        AppendNumber(text, point.x);
        text += ' ';
        AppendNumber(text, point.y);
    }
}

void AppendItem(std::string& text, std::string_view kind, std::initializer_list<Point> points) {
    text += kind;
    AppendPoints(text, points);
    text += '\n';
}

void AppendText(std::string& line, std::string_view text) {
    line += ' ';
    line += OnOneLine(text);
    line += '\n';
}

/// The coordinates at the front of a line, which are taken off it; nothing when one is missing.
template <std::size_t Count>
std::optional<std::array<Point, Count>> TakePoints(std::string_view& line) {
    std::array<Point, Count> points;
    for (Point& point : points) {
        for (float* value : {&point.x, &point.y}) {
            const std::string_view token = TakeUpTo(line, " ");
            const auto end = token.data() + token.size();
            const auto [stop, failure] = std::from_chars(token.data(), end, *value);
            if (failure != std::errc() || stop != end || !std::isfinite(*value)) return std::nullopt;
        }
    }
    return points;
}

void ReadLine(std::string_view line, UnsavedDrawing& drawing) {
    const std::string_view kind = TakeUpTo(line, " ");
    DrawingItems& items = drawing.items;
    if (kind == kNumber) {
        drawing.number = FromOneLine(line);
    } else if (kind == kName) {
        drawing.name = FromOneLine(line);
    } else if (kind == kLine) {
        if (const auto p = TakePoints<2>(line)) items.lines.push_back({(*p)[0], (*p)[1]});
    } else if (kind == kRectangle) {
        if (const auto p = TakePoints<2>(line)) items.rectangles.push_back({(*p)[0], (*p)[1]});
    } else if (kind == kArrow) {
        if (const auto p = TakePoints<2>(line)) items.arrows.push_back({(*p)[0], (*p)[1]});
    } else if (kind == kDimension) {
        if (const auto p = TakePoints<3>(line)) items.dimensions.push_back({(*p)[0], (*p)[1], (*p)[2]});
    } else if (kind == kArc) {
        if (const auto p = TakePoints<3>(line)) items.arcs.push_back({(*p)[0], (*p)[1], (*p)[2]});
    } else if (kind == kString) {
        if (const auto p = TakePoints<1>(line)) items.strings.push_back({(*p)[0], FromOneLine(line)});
    }
}

}  // namespace

std::string RecoveryText(const UnsavedDrawing& drawing) {
    std::string text;
    if (!drawing.number.empty()) {
        text += kNumber;
        AppendText(text, drawing.number);
        text += kName;
        AppendText(text, drawing.name);
    }
    for (const LineItem& item : drawing.items.lines) AppendItem(text, kLine, {item.p1, item.p2});
    for (const RectangleItem& item : drawing.items.rectangles) {
        AppendItem(text, kRectangle, {item.p1, item.p2});
    }
    for (const DimensionItem& item : drawing.items.dimensions) {
        AppendItem(text, kDimension, {item.p1, item.p2, item.p3});
    }
    for (const ArrowItem& item : drawing.items.arrows) AppendItem(text, kArrow, {item.p1, item.p2});
    for (const TextItem& item : drawing.items.strings) {
        text += kString;
        AppendPoints(text, {item.at});
        AppendText(text, item.text);
    }
    for (const ArcItem& item : drawing.items.arcs) AppendItem(text, kArc, {item.p1, item.p2, item.p3});
    return text;
}

UnsavedDrawing ReadRecoveryText(std::string_view text) {
    UnsavedDrawing drawing;
    while (!text.empty()) ReadLine(TakeUpTo(text, "\n"), drawing);
    return drawing;
}

}  // namespace kalvane
