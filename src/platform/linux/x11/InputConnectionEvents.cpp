#include "platform/linux/x11/InputConnection.h"

#include "platform/linux/x11/XcbXkb.h"

#include <xcb/xinput.h>

namespace tarvin::x11 {

namespace {

/// Events carry their kind in a field; which structure they are follows from it.
template <typename Type> const Type& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Type&>(event);
}

constexpr std::uint8_t withoutSendBit = 0x7F;

} // namespace

std::optional<ServerEvent> InputConnection::nextEvent()
{
    while (m_keyboardChanges.empty()) {
        const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())};
        if (!event)
            return std::nullopt;
        if (auto decoded = decode(*event))
            return decoded;
    }
    const ServerEvent change = m_keyboardChanges.front();
    m_keyboardChanges.pop_front();
    return change;
}

std::optional<ServerEvent> InputConnection::decode(const xcb_generic_event_t& event)
{
    // Errors come the same way and are left out: what we ask without waiting for an answer can only fail because a
    // keyboard has just gone, which is reported besides.
    const auto type = static_cast<std::uint8_t>(event.response_type & withoutSendBit);
    if (type == XCB_GE_GENERIC && as<xcb_ge_generic_event_t>(event).extension == m_inputOpcode)
        return decodeInput(event);
    if (type == m_xkbFirstEvent)
        return decodeXkb(event);
    return std::nullopt;
}

std::optional<ServerEvent> InputConnection::decodeInput(const xcb_generic_event_t& event)
{
    switch (as<xcb_ge_generic_event_t>(event).event_type) {
    case XCB_INPUT_KEY_PRESS:
    case XCB_INPUT_KEY_RELEASE: {
        const auto& key = as<xcb_input_key_press_event_t>(event);
        auto motion = KeyMotion::release;
        if (key.event_type == XCB_INPUT_KEY_PRESS) {
            const bool isRepeat = (key.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0;
            motion = isRepeat ? KeyMotion::repeat : KeyMotion::press;
        }
        return ServerEvent{key.full_sequence, GrabbedKey{{key.deviceid, static_cast<Keycode>(key.detail)}, motion}};
    }
    case XCB_INPUT_RAW_KEY_PRESS:
    case XCB_INPUT_RAW_KEY_RELEASE: {
        const auto& key = as<xcb_input_raw_key_press_event_t>(event);
        const auto motion = key.event_type == XCB_INPUT_RAW_KEY_PRESS ? KeyMotion::press : KeyMotion::release;
        return ServerEvent{
            key.full_sequence, RawKey{{key.sourceid, static_cast<Keycode>(key.detail)}, motion, key.time}};
    }
    case XCB_INPUT_HIERARCHY:
        decodeHierarchy(event);
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

void InputConnection::decodeHierarchy(const xcb_generic_event_t& event)
{
    constexpr std::uint32_t went = XCB_INPUT_HIERARCHY_MASK_SLAVE_REMOVED | XCB_INPUT_HIERARCHY_MASK_SLAVE_DETACHED
        | XCB_INPUT_HIERARCHY_MASK_DEVICE_DISABLED;
    constexpr std::uint32_t came = XCB_INPUT_HIERARCHY_MASK_SLAVE_ADDED | XCB_INPUT_HIERARCHY_MASK_SLAVE_ATTACHED
        | XCB_INPUT_HIERARCHY_MASK_DEVICE_ENABLED;
    const auto& hierarchy = as<xcb_input_hierarchy_event_t>(event);
    for (auto info = xcb_input_hierarchy_infos_iterator(&hierarchy); info.rem > 0;
         xcb_input_hierarchy_info_next(&info)) {
        const xcb_input_hierarchy_info_t& device = *info.data;
        if ((device.flags & went) != 0)
            m_keyboardChanges.push_back(
                {hierarchy.full_sequence, KeyboardChange{device.deviceid, KeyboardChange::Kind::went}});
        const bool isKeyboard = device.type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && device.enabled != 0;
        if ((device.flags & came) != 0 && isKeyboard && !isFakingDevice(device.deviceid))
            m_keyboardChanges.push_back(
                {hierarchy.full_sequence, KeyboardChange{device.deviceid, KeyboardChange::Kind::came}});
    }
}

std::optional<ServerEvent> InputConnection::decodeXkb(const xcb_generic_event_t& event) const
{
    // The kind stands where other events have their first detail.
    switch (as<xcb_xkb_state_notify_event_t>(event).xkbType) {
    case XCB_XKB_STATE_NOTIFY: {
        const auto& state = as<xcb_xkb_state_notify_event_t>(event);
        return ServerEvent{event.full_sequence, ModifierState{.effective = state.mods, .layout = state.group}};
    }
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY:
        return ServerEvent{event.full_sequence, KeymapChange{}};
    default:
        return std::nullopt;
    }
}

} // namespace tarvin::x11
