#pragma once

#include <array>
#include <string>

namespace kalvane {

/// A point in drawing units, or in target units once it is mapped.
struct Point {
    float x = 0;
    float y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

// What a drawing is made of. Points() are the stored points of an item, in the order of its columns.

struct LineItem {
    Point p1;
    Point p2;

    std::array<Point, 2> Points() const { return {p1, p2}; }
    friend bool operator==(const LineItem&, const LineItem&) = default;
};

/// Two opposite corners, in any order.
struct RectangleItem {
    Point p1;
    Point p2;

    std::array<Point, 2> Points() const { return {p1, p2}; }
    friend bool operator==(const RectangleItem&, const RectangleItem&) = default;
};

struct ArrowItem {
    Point p1;  ///< tail
    Point p2;  ///< head

    std::array<Point, 2> Points() const { return {p1, p2}; }
    friend bool operator==(const ArrowItem&, const ArrowItem&) = default;
};

/// A dimension mark. The name of the dimension is a text item of its own.
struct DimensionItem {
    Point p1;  ///< measured point
    Point p2;  ///< measured point
    Point p3;  ///< sets the distance of the dimension line from the measured points

    std::array<Point, 3> Points() const { return {p1, p2, p3}; }
    friend bool operator==(const DimensionItem&, const DimensionItem&) = default;
};

/// One line of text, as a rule the label that names a dimension in the formulas.
struct TextItem {
    Point at;  ///< left edge of the text, middle of its height
    std::string text;

    std::array<Point, 1> Points() const { return {at}; }
    friend bool operator==(const TextItem&, const TextItem&) = default;
};

/// A part of the circle through three points; see DrawArc for the part that is meant.
struct ArcItem {
    Point p1;  ///< start
    Point p2;  ///< end
    Point p3;  ///< direction

    std::array<Point, 3> Points() const { return {p1, p2, p3}; }
    friend bool operator==(const ArcItem&, const ArcItem&) = default;
};

}  // namespace kalvane
