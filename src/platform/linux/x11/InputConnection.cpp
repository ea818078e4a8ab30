#include "platform/linux/x11/InputConnection.h"

#include "tapd/protocol/DeviceNames.h"

#include "platform/linux/x11/XcbXkb.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <xkbcommon/xkbcommon-x11.h>

namespace tarvin::x11 {

namespace {

/// Raw events reach us whatever is grabbed only from this version on.
constexpr std::uint16_t inputMajor = 2;
constexpr std::uint16_t inputMinor = 2;

constexpr std::uint8_t secondaryButton = 3;

constexpr QLatin1String postingName(tapd::postingDeviceName.data(), tapd::postingDeviceName.size());
constexpr std::array<QLatin1String, 2> reEmittingNames{
    QLatin1String(tapd::internalOutputName.data(), tapd::internalOutputName.size()),
    QLatin1String(tapd::externalOutputName.data(), tapd::externalOutputName.size())};
/// How the X server of a Wayland session names its devices.
constexpr QLatin1String waylandPrefix("xwayland-");

constexpr std::array<std::uint32_t, 1> anyModifier{XCB_INPUT_MODIFIER_MASK_ANY};

std::span<const std::uint32_t> orAny(std::span<const std::uint32_t> modifiers)
{
    return modifiers.empty() ? anyModifier : modifiers;
}

xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

std::variant<std::unique_ptr<InputConnection>, QString> InputConnection::open(const QByteArray& display)
{
    int screen = 0;
    XcbConnection connection(xcb_connect(display.isEmpty() ? nullptr : display.constData(), &screen));
    if (xcb_connection_has_error(connection.get()) != 0)
        return QStringLiteral("the X server can't be reached");
    std::unique_ptr<InputConnection> opened(new InputConnection(std::move(connection), screen));
    if (auto lack = opened->prepare())
        return *std::move(lack);
    return opened;
}

InputConnection::InputConnection(XcbConnection connection, int screen)
    : m_connection(std::move(connection))
    , m_xkbContext(xkb_context_new(XKB_CONTEXT_NO_FLAGS))
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
    for (int index = 0; index < screen && screens.rem > 1; ++index)
        xcb_screen_next(&screens);
    m_root = screens.data->root;
}

std::optional<QString> InputConnection::prepare()
{
    xcb_connection_t* const connection = m_connection.get();
    const xcb_query_extension_reply_t* const input = xcb_get_extension_data(connection, &xcb_input_id);
    const xcb_query_extension_reply_t* const test = xcb_get_extension_data(connection, &xcb_test_id);
    if (input == nullptr || input->present == 0 || test == nullptr || test->present == 0)
        return QStringLiteral("the X server has no XInput or no XTEST extension");
    m_inputOpcode = input->major_opcode;

    const XcbOwned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, inputMajor, inputMinor), nullptr));
    if (!version || version->major_version < inputMajor
        || (version->major_version == inputMajor && version->minor_version < inputMinor))
        return QStringLiteral("the X server's XInput is older than 2.2");

    std::uint8_t firstEvent = 0;
    if (xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
            XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent, nullptr)
        == 0)
        return QStringLiteral("the X server has no XKB extension");
    m_xkbFirstEvent = firstEvent;
    m_fakingDeviceProperty = atomNamed(connection, "XTEST Device");
    selectEvents();
    return std::nullopt;
}

void InputConnection::selectEvents()
{
    struct Selection
    {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    };
    // Raw events of the slaves as such would come twice, once for the master.
    const std::array<Selection, 2> selections{{
        {{XCB_INPUT_DEVICE_ALL_MASTER, 1},
            XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE},
        {{XCB_INPUT_DEVICE_ALL, 1}, XCB_INPUT_XI_EVENT_MASK_HIERARCHY},
    }};
    for (const Selection& selection : selections)
        xcb_input_xi_select_events(m_connection.get(), m_root, 1, &selection.head);

    constexpr std::uint16_t events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr std::uint16_t stateParts = XCB_XKB_STATE_PART_MODIFIER_STATE | XCB_XKB_STATE_PART_GROUP_STATE;
    constexpr std::uint16_t keymapParts = 0xFF;
    constexpr std::uint16_t keyboardParts = 0x07;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = keyboardParts;
    details.newKeyboardDetails = keyboardParts;
    details.affectState = stateParts;
    details.stateDetails = stateParts;
    xcb_xkb_select_events_aux(
        m_connection.get(), XCB_XKB_ID_USE_CORE_KBD, events, 0, 0, keymapParts, keymapParts, &details);
}

bool InputConnection::isBroken() const
{
    return xcb_connection_has_error(m_connection.get()) != 0;
}

int InputConnection::fileDescriptor() const
{
    return xcb_get_file_descriptor(m_connection.get());
}

void InputConnection::flush()
{
    xcb_flush(m_connection.get());
}

void InputConnection::sync()
{
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}

Keyboards InputConnection::keyboards()
{
    xcb_connection_t* const connection = m_connection.get();
    const XcbOwned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
    Keyboards found;
    if (!reply)
        return found;
    std::vector<DeviceId> devices;
    for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem > 0;
         xcb_input_xi_device_info_next(&info)) {
        if (info.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && info.data->enabled != 0)
            devices.push_back(info.data->deviceid);
    }
    for (const DeviceId device : devices) {
        const QString name = nameOf(device);
        found.areOfAnotherSession = found.areOfAnotherSession || name.startsWith(waylandPrefix);
        if (std::ranges::find(reEmittingNames, name) != reEmittingNames.end())
            found.reEmitting.push_back(device);
        if (name == postingName)
            found.posting = device;
        else if (!isFakingDevice(device))
            found.physical.push_back(device);
        else if (found.faking == 0) // further ones belong to further pairs of pointer and keyboard
            found.faking = device;
    }
    return found;
}

bool InputConnection::isFakingDevice(DeviceId device)
{
    const auto cookie =
        xcb_input_xi_get_property(m_connection.get(), device, 0, m_fakingDeviceProperty, XCB_ATOM_ANY, 0, 1);
    const XcbOwned<xcb_input_xi_get_property_reply_t> reply(
        xcb_input_xi_get_property_reply(m_connection.get(), cookie, nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

bool InputConnection::isPostingDevice(DeviceId device)
{
    return nameOf(device) == postingName;
}

QString InputConnection::nameOf(DeviceId device)
{
    const XcbOwned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        m_connection.get(), xcb_input_xi_query_device(m_connection.get(), device), nullptr));
    if (!reply || reply->num_infos == 0)
        return {};
    const xcb_input_xi_device_info_t* const info = xcb_input_xi_query_device_infos_iterator(reply.get()).data;
    return QString::fromUtf8(xcb_input_xi_device_info_name(info), xcb_input_xi_device_info_name_length(info));
}

unsigned InputConnection::requestGrab(PhysicalKey key, std::span<const std::uint32_t> modifiers)
{
    const std::span<const std::uint32_t> wanted = orAny(modifiers);
    constexpr std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_KEY_RELEASE;
    // Asynchronous in both: a frozen keyboard would stay frozen while this program is stopped.
    return xcb_input_xi_passive_grab_device(m_connection.get(), XCB_CURRENT_TIME, m_root, XCB_CURSOR_NONE, key.keycode,
        key.device, static_cast<std::uint16_t>(wanted.size()), 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
        XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &events,
        wanted.data())
        .sequence;
}

GrabOutcome InputConnection::grabOutcome(unsigned request)
{
    const XcbOwned<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(m_connection.get(), {request}, nullptr));
    if (!reply)
        return GrabOutcome::noSuchDevice;
    // The reply lists the modifiers with which the key could not be had.
    return reply->num_modifiers == 0 ? GrabOutcome::granted : GrabOutcome::takenByAnother;
}

void InputConnection::removeGrab(PhysicalKey key, std::span<const std::uint32_t> modifiers)
{
    const std::span<const std::uint32_t> wanted = orAny(modifiers);
    xcb_input_xi_passive_ungrab_device(m_connection.get(), m_root, key.keycode, key.device,
        static_cast<std::uint16_t>(wanted.size()), XCB_INPUT_GRAB_TYPE_KEYCODE, wanted.data());
}

void InputConnection::endGrab(DeviceId device)
{
    xcb_input_xi_ungrab_device(m_connection.get(), XCB_CURRENT_TIME, device);
}

RequestSequence InputConnection::fakeKey(FakeKey key)
{
    const std::uint8_t type = key.motion == FakeMotion::press ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
    return xcb_test_fake_input(m_connection.get(), type, key.keycode, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0)
        .sequence;
}

void InputConnection::fakeSecondaryButton(FakeMotion motion)
{
    const std::uint8_t type = motion == FakeMotion::press ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE;
    xcb_test_fake_input(m_connection.get(), type, secondaryButton, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
}

void InputConnection::fakePointerMotion(RootPosition position)
{
    constexpr std::uint8_t absolute = 0;
    xcb_test_fake_input(
        m_connection.get(), XCB_MOTION_NOTIFY, absolute, XCB_CURRENT_TIME, m_root, position.x, position.y, 0);
}

KeycodeSet InputConnection::downKeys()
{
    const XcbOwned<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(m_connection.get(), xcb_query_keymap(m_connection.get()), nullptr));
    KeycodeSet down;
    if (!reply)
        return down;
    constexpr std::size_t bitsPerByte = 8;
    for (std::size_t keycode = 0; keycode < keycodeCount; ++keycode)
        down[keycode] = (reply->keys[keycode / bitsPerByte] >> (keycode % bitsPerByte) & 1) != 0;
    return down;
}

ModifierState InputConnection::modifierState()
{
    const XcbOwned<xcb_xkb_get_state_reply_t> reply(xcb_xkb_get_state_reply(
        m_connection.get(), xcb_xkb_get_state(m_connection.get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return reply ? ModifierState{.effective = reply->mods, .layout = reply->group} : ModifierState{};
}

XkbKeymap InputConnection::keymapOf(DeviceId device)
{
    return XkbKeymap(m_xkbContext ? xkb_x11_keymap_new_from_device(
                         m_xkbContext.get(), m_connection.get(), device, XKB_KEYMAP_COMPILE_NO_FLAGS)
                                  : nullptr);
}

KeyboardMap InputConnection::keyboardMap(DeviceId keyboard, DeviceId faking)
{
    const XkbKeymap ofKeyboard = keymapOf(keyboard);
    const XkbKeymap ofFaking = keymapOf(faking);
    return ofKeyboard && ofFaking ? KeyboardMap(*ofKeyboard, *ofFaking) : KeyboardMap();
}

std::optional<RootPosition> InputConnection::pointerPosition()
{
    const XcbOwned<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection.get(), xcb_query_pointer(m_connection.get(), m_root), nullptr));
    return reply ? std::optional(RootPosition{reply->root_x, reply->root_y}) : std::nullopt;
}

} // namespace tarvin::x11
