#include "platform/linux/x11/KeyboardHold.h"

#include "platform/linux/x11/XcbXkb.h"

#include <xcb/xinput.h>

#include <xkbcommon/xkbcommon-x11.h>

namespace tarvin::x11 {

namespace {

constexpr std::uint16_t inputMajor = 2;
constexpr std::uint16_t inputMinor = 2;
constexpr std::uint8_t withoutSendBit = 0x7F;
/// A focus "window" with a number up to this one stands for no window, or for the one below the pointer.
constexpr xcb_window_t lastSpecialFocus = 1;

template <typename Type> const Type& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Type&>(event);
}

struct Selection
{
    xcb_input_event_mask_t head;
    std::uint32_t mask;
};

} // namespace

std::unique_ptr<KeyboardHold> KeyboardHold::take(const QByteArray& display)
{
    int screen = 0;
    XcbConnection connection(xcb_connect(display.isEmpty() ? nullptr : display.constData(), &screen));
    if (xcb_connection_has_error(connection.get()) != 0)
        return nullptr;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (int index = 0; index < screen && screens.rem > 1; ++index)
        xcb_screen_next(&screens);
    std::unique_ptr<KeyboardHold> hold(new KeyboardHold(std::move(connection), screens.data->root));
    return hold->prepare() && hold->grab() ? std::move(hold) : nullptr;
}

KeyboardHold::KeyboardHold(XcbConnection connection, xcb_window_t root)
    : m_connection(std::move(connection))
    , m_xkbContext(xkb_context_new(XKB_CONTEXT_NO_FLAGS))
    , m_root(root)
{ }

bool KeyboardHold::prepare()
{
    xcb_connection_t* const connection = m_connection.get();
    const xcb_query_extension_reply_t* const input = xcb_get_extension_data(connection, &xcb_input_id);
    if (input == nullptr || input->present == 0)
        return false;
    m_inputOpcode = input->major_opcode;
    // A server has this for every client that wants to speak of input devices at all.
    const XcbOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, inputMajor, inputMinor), nullptr));
    if (!version
        || xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
               XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &m_xkbFirstEvent, nullptr)
            == 0)
        return false;
    const std::int32_t keyboard = xkb_x11_get_core_keyboard_device_id(connection);
    if (keyboard < 0)
        return false;
    m_keyboard = static_cast<DeviceId>(keyboard);
    constexpr std::uint16_t mapEvents = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t allParts = 0xFF;
    constexpr std::uint16_t keyboardParts = 0x07;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = keyboardParts;
    details.newKeyboardDetails = keyboardParts;
    xcb_xkb_select_events_aux(connection, XCB_XKB_ID_USE_CORE_KBD, mapEvents, 0, 0, allParts, allParts, &details);
    return true;
}

xcb_window_t KeyboardHold::focusWindow() const
{
    const XcbOwned<xcb_input_xi_get_focus_reply_t> reply(xcb_input_xi_get_focus_reply(
        m_connection.get(), xcb_input_xi_get_focus(m_connection.get(), m_keyboard), nullptr));
    return reply && reply->focus > lastSpecialFocus ? reply->focus : m_root;
}

void KeyboardHold::watch(xcb_window_t window) const
{
    const Selection selection{{m_keyboard, 1}, XCB_INPUT_XI_EVENT_MASK_FOCUS_OUT};
    xcb_input_xi_select_events(m_connection.get(), window, 1, &selection.head);
    const std::uint32_t structure = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection.get(), window, XCB_CW_EVENT_MASK, &structure);
}

bool KeyboardHold::grab()
{
    const xcb_window_t window = focusWindow();
    watch(window);
    constexpr std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_KEY_RELEASE;
    // On the very window that has the focus: it is told that the focus goes and, at once, that it comes back. On any
    // other window it would be told only the former.
    const auto cookie =
        xcb_input_xi_grab_device(m_connection.get(), window, XCB_CURRENT_TIME, XCB_CURSOR_NONE, m_keyboard,
            XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, 1, &events);
    const XcbOwned<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(m_connection.get(), cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

std::optional<std::variant<HeldPress, HoldLost>> KeyboardHold::next()
{
    for (;;) {
        const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())};
        if (!event) {
            if (xcb_connection_has_error(m_connection.get()) != 0)
                return HoldLost{};
            return std::nullopt;
        }
        if (auto decoded = decode(*event))
            return decoded;
    }
}

std::optional<std::variant<HeldPress, HoldLost>> KeyboardHold::decode(const xcb_generic_event_t& event)
{
    const auto type = static_cast<std::uint8_t>(event.response_type & withoutSendBit);
    if (type == XCB_GE_GENERIC && as<xcb_ge_generic_event_t>(event).extension == m_inputOpcode)
        return decodeInput(event);
    if (type == XCB_UNMAP_NOTIFY || type == XCB_DESTROY_NOTIFY)
        return HoldLost{};
    if (type == m_xkbFirstEvent)
        m_keymaps.clear();
    return std::nullopt;
}

std::optional<std::variant<HeldPress, HoldLost>> KeyboardHold::decodeInput(const xcb_generic_event_t& event) const
{
    switch (as<xcb_ge_generic_event_t>(event).event_type) {
    case XCB_INPUT_KEY_PRESS: {
        const auto& key = as<xcb_input_key_press_event_t>(event);
        if ((key.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0)
            return std::nullopt;
        return HeldPress{.source = key.sourceid,
            .keycode = static_cast<Keycode>(key.detail),
            .modifiers = static_cast<ModifierMask>(key.mods.base | key.mods.latched),
            .layout = key.group.effective};
    }
    case XCB_INPUT_FOCUS_OUT: {
        const auto& focus = as<xcb_input_focus_out_event_t>(event);
        // Grabs move the focus in words only, and a part of the window is still the window.
        const bool isReal =
            focus.mode == XCB_INPUT_NOTIFY_MODE_NORMAL || focus.mode == XCB_INPUT_NOTIFY_MODE_WHILE_GRABBED;
        if (isReal && focus.detail != XCB_INPUT_NOTIFY_DETAIL_INFERIOR)
            return HoldLost{};
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

xkb_keymap* KeyboardHold::keymapOf(DeviceId keyboard)
{
    XkbKeymap& keymap = m_keymaps[keyboard];
    if (!keymap && m_xkbContext) {
        keymap.reset(xkb_x11_keymap_new_from_device(
            m_xkbContext.get(), m_connection.get(), keyboard, XKB_KEYMAP_COMPILE_NO_FLAGS));
    }
    return keymap.get();
}

} // namespace tarvin::x11
