#pragma once

#include <cstdint>
#include <vector>

namespace tarvin::windows {

/// A rectangle in pixels of the root window.
struct PixelRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    [[nodiscard]] int right() const { return x + width; }
    [[nodiscard]] int bottom() const { return y + height; }
    [[nodiscard]] bool contains(int pointX, int pointY) const
    {
        return pointX >= x && pointX < right() && pointY >= y && pointY < bottom();
    }
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// The part common to both; without size where there is none.
[[nodiscard]] PixelRect intersected(const PixelRect& a, const PixelRect& b);

/// What a panel keeps free at one edge of the whole screen, as `_NET_WM_STRUT_PARTIAL` has it.
struct Strut
{
    enum class Edge : std::uint8_t { left, right, top, bottom };
    Edge edge = Edge::top;
    int thickness = 0; ///< from the edge of the whole screen, not of a monitor
    int start = 0; ///< where it begins along the edge
    int end = 0; ///< its last pixel along the edge
    friend bool operator==(const Strut&, const Strut&) = default;
};

/// The struts in the value of `_NET_WM_STRUT_PARTIAL` (12 numbers) or `_NET_WM_STRUT` (4, along the whole edge); empty
/// for anything else.
[[nodiscard]] std::vector<Strut> strutsOf(const std::vector<std::uint32_t>& property, const PixelRect& wholeScreen);

/// What the struts leave free of a monitor. One that would leave nothing belongs to the monitor beyond and is passed
/// over: the strut of a panel between two monitors reaches across the outer one.
[[nodiscard]] PixelRect freeArea(
    const PixelRect& monitor, const std::vector<Strut>& struts, const PixelRect& wholeScreen);

} // namespace tarvin::windows
