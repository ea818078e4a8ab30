#pragma once

namespace tarvin {

/// A position in logical points; the origin is the top left of the primary screen and y grows downwards.
struct Point
{
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Size
{
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

/// A rectangle of the same coordinates.
struct Rect
{
    Point origin;
    Size size;
    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace tarvin
