#pragma once

#include "platform/linux/x11/XTypes.h"
#include "platform/linux/x11/XcbHandles.h"
#include "platform/linux/x11/XkbHandles.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <optional>
#include <variant>

namespace tarvin::x11 {

/// A key went down while the keyboard is held.
struct HeldPress
{
    DeviceId source = 0; ///< the keyboard that made it
    Keycode keycode = 0;
    ModifierMask modifiers = 0; ///< pressed or latched; locks are left out
    std::uint8_t layout = 0;
};

/// The hold is over: the window lost the keyboard or went away, or the server did.
struct HoldLost
{ };

/// The whole keyboard of an X session, taken from every other program by a connection of its own. The server gives it
/// back when this object or the process goes. Used by one thread.
class KeyboardHold
{
public:
    /// Takes the keyboard on behalf of the window that has it.
    /// @return null where there is no server, and where another program holds the keyboard
    [[nodiscard]] static std::unique_ptr<KeyboardHold> take(const QByteArray& display);

    [[nodiscard]] int fileDescriptor() const { return xcb_get_file_descriptor(m_connection.get()); }
    /// What has happened, without waiting; presses only, and none of the repeats.
    [[nodiscard]] std::optional<std::variant<HeldPress, HoldLost>> next();
    /// Null where it can't be read. Valid until the next call of `next`.
    [[nodiscard]] xkb_keymap* keymapOf(DeviceId keyboard);

private:
    KeyboardHold(XcbConnection connection, xcb_window_t root);

    [[nodiscard]] bool prepare();
    [[nodiscard]] bool grab();
    [[nodiscard]] xcb_window_t focusWindow() const;
    void watch(xcb_window_t window) const;
    [[nodiscard]] std::optional<std::variant<HeldPress, HoldLost>> decode(const xcb_generic_event_t& event);
    [[nodiscard]] std::optional<std::variant<HeldPress, HoldLost>> decodeInput(const xcb_generic_event_t& event) const;

    XcbConnection m_connection;
    XkbContext m_xkbContext;
    xcb_window_t m_root;
    DeviceId m_keyboard = 0; ///< the one that the session's applications know
    std::uint8_t m_inputOpcode = 0;
    std::uint8_t m_xkbFirstEvent = 0;
    std::map<DeviceId, XkbKeymap> m_keymaps;
};

} // namespace tarvin::x11
