#pragma once

#include "platform/linux/desktop/XConnection.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

namespace tarvin::desktop {

/// "A pager, or another tool that does the user's will": the source of a wish, by the window manager protocol.
inline constexpr std::uint32_t sourcePager = 2;

enum class StateChange : std::uint32_t { remove = 0, add = 1 };

/// A wish about a window, or about the whole desktop if the window is the root.
void sendToManager(const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, XAtom type,
    const std::array<std::uint32_t, 5>& data);

/// Gives a shown window one or two states, or takes them.
void requestStates(const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, StateChange change,
    XAtom state, std::optional<XAtom> otherState = std::nullopt);

/// Requests to the window manager. Each goes out by the connection `sender`, which for the program's own windows is the
/// toolkit's: so it arrives after what the toolkit did to the window before.

/// Brings a window to the front with the keyboard, out of the icon and from another desktop if need be. Asked in the
/// way of a pager, since managers grant that without looking at which program the user worked with last.
/// @param time the server's time of the user's wish
void requestActivation(
    const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, xcb_timestamp_t time);

/// Turns a window into its icon.
void requestMinimizing(const XConnection& connection, xcb_connection_t* sender, xcb_window_t window);

enum class TaskbarPresence { shown, skipped };

/// Puts a shown window into the taskbar and the switcher, or takes it out.
void requestTaskbarPresence(
    const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, TaskbarPresence presence);

/// The same for a window about to be shown, which managers read from the window itself.
void prepareTaskbarPresence(
    const XConnection& connection, xcb_connection_t* sender, xcb_window_t window, TaskbarPresence presence);

/// Tells the session that an application is about to come up; managers show a busy cursor, and let the window that
/// answers the id come to the front.
/// @param windowClass of that window, empty if unknown
void announceStartup(
    const XConnection& connection, const QByteArray& startupId, const QString& name, const QString& windowClass);

/// Tells the session that the start, or the summons, of this id is done; its busy cursor ends.
void completeStartup(const XConnection& connection, const QByteArray& startupId);

/// The time of the user's deed that a startup id carries, or nothing.
[[nodiscard]] std::optional<xcb_timestamp_t> startupTime(const QByteArray& startupId);

} // namespace tarvin::desktop
