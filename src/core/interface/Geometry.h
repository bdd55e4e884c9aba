#pragma once

/// Points, sizes and rectangles in points of a view's coordinate system. Which way y grows is the
/// view's affair.
namespace zarvil {

struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] Size size() const { return {width, height}; }
    /// The low edges belong to the rectangle, the high ones do not.
    [[nodiscard]] bool contains(Point point) const {
        return point.x >= x && point.x < x + width && point.y >= y && point.y < y + height;
    }
    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace zarvil
