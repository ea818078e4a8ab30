#pragma once

#include "platform/linux/desktop/XConnection.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace tarvin::desktop {

// The properties of windows, as numbers and texts. A request and the reading of its answer are apart, so that many can
// be under way at once. The connection must be connected.

[[nodiscard]] xcb_get_property_cookie_t askProperty(
    const XConnection& connection, xcb_window_t window, xcb_atom_t property);

/// Empty where the window or the property is not there, or holds no numbers of 32 bits.
[[nodiscard]] std::vector<std::uint32_t> numbersOf(const XConnection& connection, xcb_get_property_cookie_t cookie);

/// Empty where the window or the property is not there, or holds no text.
[[nodiscard]] QByteArray textOf(const XConnection& connection, xcb_get_property_cookie_t cookie);

/// One round trip.
[[nodiscard]] std::vector<std::uint32_t> numbersOf(const XConnection& connection, xcb_window_t window, XAtom property);

/// The same of the root window.
[[nodiscard]] std::vector<std::uint32_t> rootNumbers(const XConnection& connection, XAtom property);

/// Whether the running window manager says that it grants a wish of this kind.
[[nodiscard]] bool managerSupports(const XConnection& connection, XAtom hint);

} // namespace tarvin::desktop
