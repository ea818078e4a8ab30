#pragma once

#include "model/KeyAction.h"
#include "platform/ports/Geometry.h"

#include <QStringView>

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace tarvin {

/// One action that the ring offers, with the parameters of a new record.
struct RingItem
{
    QStringView title;
    QStringView icon; ///< the name of a symbol
    KeyAction action;
};

/// The first stands at the top, the others follow clockwise.
inline constexpr auto ringItems = std::to_array<RingItem>({
    {u"Screen Capture", u"camera.viewfinder", KeyAction::screenCapture},
    {u"Calculator", u"function", KeyAction::calculator},
    {u"Copy", u"doc.on.doc", KeyAction::copy},
    {u"Paste", u"doc.on.clipboard", KeyAction::paste},
    {u"Mute", u"speaker.slash.fill", KeyAction::mute},
    {u"Lock Screen", u"lock.fill", KeyAction::lockScreen},
});

inline constexpr double ringRadius = 100;

/// How far the middle of an item stands from the middle of the ring.
[[nodiscard]] inline Point ringOffset(std::size_t index, std::size_t count = ringItems.size())
{
    const double angle =
        2 * std::numbers::pi / static_cast<double>(count) * static_cast<double>(index) - std::numbers::pi / 2;
    return {.x = std::cos(angle) * ringRadius, .y = std::sin(angle) * ringRadius};
}

} // namespace tarvin
