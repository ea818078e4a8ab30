#include "endtoend/support/RecordingClient.h"

#include "endtoend/support/Patience.h"
#include "platform/keycodes/KeyCodeTable.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tarvin::endtoend {

namespace {

std::string modifierNames(std::uint16_t state)
{
    constexpr std::array<std::pair<std::uint16_t, std::string_view>, 6> names{{
        {XCB_MOD_MASK_SHIFT, "Shift."},
        {XCB_MOD_MASK_LOCK, "Lock."},
        {XCB_MOD_MASK_CONTROL, "Control."},
        {XCB_MOD_MASK_1, "Alt."},
        {XCB_MOD_MASK_4, "Super."},
        {XCB_MOD_MASK_5, "Level3."},
    }};
    std::string text;
    for (const auto& [mask, name] : names) {
        if ((state & mask) != 0)
            text += name;
    }
    return text;
}

} // namespace

RecordingClient::RecordingClient(const std::string& display, const std::string& windowClass)
    : m_client(display)
{
    xcb_connection_t* const connection = m_client.get();
    m_window = xcb_generate_id(connection);
    const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_FOCUS_CHANGE
        | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_window, m_client.root(), 50, 50, 400, 300, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    const std::string names = windowClass + '\0' + windowClass + '\0';
    constexpr std::uint8_t bits = 8;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, bits,
        static_cast<std::uint32_t>(names.size()), names.data());
    xcb_map_window(connection, m_window);
    const bool isMapped = eventually([this] {
        read();
        return m_isMapped;
    });
    if (!isMapped)
        throw std::runtime_error("the recording window was never mapped");
    takeFocus();
}

void RecordingClient::takeFocus()
{
    const bool hasFocus = eventually([this] {
        xcb_set_input_focus(m_client.get(), XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
        read();
        return m_hasFocus;
    });
    if (!hasFocus)
        throw std::runtime_error("the recording window was given no keyboard");
    m_focusChanges = 0;
}

void RecordingClient::read()
{
    m_client.sync();
    constexpr std::uint8_t sendBit = 0x80;
    while (const XOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_client.get())}) {
        const bool isSent = (event->response_type & sendBit) != 0;
        switch (event->response_type & ~sendBit) {
        case XCB_KEY_PRESS:
        case XCB_KEY_RELEASE: {
            const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
            const bool isPress = (event->response_type & ~sendBit) == XCB_KEY_PRESS;
            m_keys.push_back({isPress, key.detail, key.state, key.time, isSent});
            break;
        }
        case XCB_FOCUS_IN:
            m_hasFocus = true;
            ++m_focusChanges;
            break;
        case XCB_FOCUS_OUT:
            m_hasFocus = false;
            ++m_focusChanges;
            break;
        case XCB_MAPPING_NOTIFY:
            ++m_mappingChanges;
            break;
        case XCB_MAP_NOTIFY:
            m_isMapped = true;
            break;
        default:
            break;
        }
    }
}

std::string RecordingClient::nameOf(const RecordedKey& key)
{
    const KeyCodeRow* const row = keyRowOfXKeycode(key.keycode);
    return row == nullptr ? "#" + std::to_string(key.keycode) : std::string(row->name);
}

std::string RecordingClient::keys()
{
    read();
    std::string text;
    for (const RecordedKey& key : m_keys)
        text += (text.empty() ? "" : " ") + std::string(key.isPress ? "+" : "-") + nameOf(key);
    return text;
}

std::string RecordingClient::keysWithModifiers()
{
    read();
    std::string text;
    for (const RecordedKey& key : m_keys) {
        text +=
            (text.empty() ? "" : " ") + std::string(key.isPress ? "+" : "-") + modifierNames(key.state) + nameOf(key);
    }
    return text;
}

std::string RecordingClient::keysyms()
{
    read();
    std::ostringstream text;
    for (const RecordedKey& key : m_keys) {
        const XOwned<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
            m_client.get(), xcb_get_keyboard_mapping(m_client.get(), key.keycode, 1), nullptr));
        text << (text.tellp() == 0 ? "" : " ") << (key.isPress ? '+' : '-') << std::hex
             << (reply ? *xcb_get_keyboard_mapping_keysyms(reply.get()) : 0);
    }
    return text.str();
}

void RecordingClient::dropLast(std::size_t count)
{
    m_keys.resize(m_keys.size() - std::min(count, m_keys.size()));
}

void RecordingClient::forget()
{
    read();
    m_keys.clear();
    m_focusChanges = 0;
    m_mappingChanges = 0;
}

} // namespace tarvin::endtoend
