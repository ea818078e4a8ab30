#pragma once

#include <QColor>

#include <algorithm>

namespace tarvin {

/// An sRGB colour that tables can hold at compile time; each part from 0 to 1.
struct Colour
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;

    bool operator==(const Colour&) const = default;

    /// The same colour with this opacity instead of its own.
    [[nodiscard]] constexpr Colour at(double newOpacity) const { return {red, green, blue, newOpacity}; }

    [[nodiscard]] QColor toQColor() const
    {
        return QColor::fromRgbF(
            static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue), static_cast<float>(opacity));
    }
    // Painters take it wherever they take a colour.
    operator QColor() const { return toQColor(); } // NOLINT(google-explicit-constructor)
};

/// The colour on the way from one to another.
/// @param part 0 gives @p from, 1 gives @p to; a spring swings beyond them, but what comes of it is still a colour
[[nodiscard]] constexpr Colour mixed(const Colour& from, const Colour& to, double part)
{
    const auto channel = [part](double a, double b) { return std::clamp(a + (b - a) * part, 0.0, 1.0); };
    return {channel(from.red, to.red), channel(from.green, to.green), channel(from.blue, to.blue),
        channel(from.opacity, to.opacity)};
}

/// From the top of a shape to its bottom.
struct Gradient
{
    Colour top;
    Colour bottom;

    bool operator==(const Gradient&) const = default;
};

} // namespace tarvin
