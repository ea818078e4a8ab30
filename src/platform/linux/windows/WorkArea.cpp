#include "platform/linux/windows/WorkArea.h"

#include <algorithm>
#include <array>

namespace tarvin::windows {

namespace {

constexpr std::array edges{Strut::Edge::left, Strut::Edge::right, Strut::Edge::top, Strut::Edge::bottom};

int numberAt(const std::vector<std::uint32_t>& property, std::size_t index)
{
    return static_cast<int>(std::min<std::uint32_t>(property[index], 0x7FFF));
}

bool isUpright(Strut::Edge edge)
{
    return edge == Strut::Edge::left || edge == Strut::Edge::right;
}

/// The strip of the screen that the strut keeps free.
PixelRect stripOf(const Strut& strut, const PixelRect& whole)
{
    const int length = strut.end - strut.start + 1;
    switch (strut.edge) {
    case Strut::Edge::left:
        return {whole.x, strut.start, strut.thickness, length};
    case Strut::Edge::right:
        return {whole.right() - strut.thickness, strut.start, strut.thickness, length};
    case Strut::Edge::top:
        return {strut.start, whole.y, length, strut.thickness};
    case Strut::Edge::bottom:
        return {strut.start, whole.bottom() - strut.thickness, length, strut.thickness};
    }
    return {};
}

PixelRect without(const PixelRect& area, Strut::Edge edge, const PixelRect& strip)
{
    PixelRect rest = area;
    switch (edge) {
    case Strut::Edge::left:
        rest.x = strip.right();
        rest.width = area.right() - rest.x;
        break;
    case Strut::Edge::right:
        rest.width = strip.x - area.x;
        break;
    case Strut::Edge::top:
        rest.y = strip.bottom();
        rest.height = area.bottom() - rest.y;
        break;
    case Strut::Edge::bottom:
        rest.height = strip.y - area.y;
        break;
    }
    return rest;
}

} // namespace

PixelRect intersected(const PixelRect& a, const PixelRect& b)
{
    const int x = std::max(a.x, b.x);
    const int y = std::max(a.y, b.y);
    return {x, y, std::max(0, std::min(a.right(), b.right()) - x), std::max(0, std::min(a.bottom(), b.bottom()) - y)};
}

std::vector<Strut> strutsOf(const std::vector<std::uint32_t>& property, const PixelRect& wholeScreen)
{
    if (property.size() != 4 && property.size() != 12)
        return {};
    std::vector<Strut> struts;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const int thickness = numberAt(property, i);
        if (thickness == 0)
            continue;
        const int length = isUpright(edges[i]) ? wholeScreen.height : wholeScreen.width;
        const bool isPartial = property.size() == 12;
        struts.push_back({.edge = edges[i],
            .thickness = thickness,
            .start = isPartial ? numberAt(property, 4 + 2 * i) : 0,
            .end = isPartial ? numberAt(property, 5 + 2 * i) : length - 1});
    }
    return struts;
}

PixelRect freeArea(const PixelRect& monitor, const std::vector<Strut>& struts, const PixelRect& wholeScreen)
{
    PixelRect area = monitor;
    for (const Strut& strut : struts) {
        const PixelRect strip = stripOf(strut, wholeScreen);
        const PixelRect common = intersected(area, strip);
        if (common.width == 0 || common.height == 0)
            continue;
        const PixelRect rest = without(area, strut.edge, strip);
        if (rest.width > 0 && rest.height > 0)
            area = rest;
    }
    return area;
}

} // namespace tarvin::windows
