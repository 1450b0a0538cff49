#include "drawing/unsaved_drawing.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <type_traits>

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

void AppendText(std::string& line, std::string_view text) {
    line += ' ';
    line += OnOneLine(text);
    line += '\n';
}

/// The items of one kind, each on a line: the kind, its coordinates, and the text of a text.
template <typename Item>
void AppendItems(std::string& text, std::string_view kind, const std::vector<Item>& items) {
    for (const Item& item : items) {
        text += kind;
        for (const Point& point : item.Points()) {
            for (const float value : {point.x, point.y}) {
                text += ' ';
                AppendNumber(text, value);
            }
        }
        if constexpr (std::is_same_v<Item, TextItem>) {
            AppendText(text, item.text);
        } else {
            text += '\n';
        }
    }
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
    AppendItems(text, kLine, drawing.items.lines);
    AppendItems(text, kRectangle, drawing.items.rectangles);
    AppendItems(text, kDimension, drawing.items.dimensions);
    AppendItems(text, kArrow, drawing.items.arrows);
    AppendItems(text, kString, drawing.items.strings);
    AppendItems(text, kArc, drawing.items.arcs);
    return text;
}

UnsavedDrawing ReadRecoveryText(std::string_view text) {
    UnsavedDrawing drawing;
    while (!text.empty()) ReadLine(TakeUpTo(text, "\n"), drawing);
    return drawing;
}

}  // namespace kalvane
