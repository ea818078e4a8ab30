#pragma once

#include "platform/linux/x11/ExactModifiers.h"
#include "platform/linux/x11/KeyboardMap.h"
#include "platform/linux/x11/ServerEvent.h"
#include "platform/linux/x11/XTypes.h"
#include "platform/linux/x11/XcbHandles.h"
#include "platform/linux/x11/XkbHandles.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tarvin::x11 {

/// How the server answered to the wish for a grab.
enum class GrabOutcome : std::uint8_t { granted, takenByAnother, noSuchDevice };

/// A position in the pixels of the root window.
struct RootPosition
{
    std::int16_t x = 0;
    std::int16_t y = 0;
    friend bool operator==(const RootPosition&, const RootPosition&) = default;
};

/// The keyboards that are there, enabled and attached.
struct Keyboards
{
    std::vector<DeviceId> physical; ///< those that a user can press keys on
    DeviceId faking = 0; ///< where the events that programs ask for are made
    std::vector<DeviceId> reEmitting; ///< those of them by which the tap daemon gives the session what is typed
    DeviceId posting = 0; ///< the tap daemon's for what this program posts; 0 where this server does not have it
    bool areOfAnotherSession = false; ///< the server stands in for a Wayland session and sees only a part of its keys
};

/// The parts of a keymap by the names under which the server finds them.
struct KeymapNames
{
    std::string keycodes;
    std::string types;
    std::string compatibility;
    std::string symbols;
    friend bool operator==(const KeymapNames&, const KeymapNames&) = default;
};

/// The conversation with one X server about keyboards, in the words of the project. Used by one thread.
///
/// Where the server has gone every call is harmless and every answer empty; `isBroken` tells.
class InputConnection
{
public:
    /// @param display as in DISPLAY; empty for the environment's
    /// @return why it can't be had, in words for a log line
    [[nodiscard]] static std::variant<std::unique_ptr<InputConnection>, QString> open(const QByteArray& display);

    [[nodiscard]] bool isBroken() const;
    [[nodiscard]] int fileDescriptor() const;
    void flush();
    /// Returns when the server has done everything asked for.
    void sync();
    /// What the server has to say, without waiting for it.
    [[nodiscard]] std::optional<ServerEvent> nextEvent();

    [[nodiscard]] Keyboards keyboards();
    /// Whether the device makes the events that programs ask for.
    [[nodiscard]] bool isFakingDevice(DeviceId device);
    /// Whether the device is the tap daemon's for what this program posts through it.
    [[nodiscard]] bool isPostingDevice(DeviceId device);
    [[nodiscard]] QString nameOf(DeviceId device);

    /// Asks for a key of one keyboard, to be taken from everybody else when it is pressed. Answered by `grabOutcome`,
    /// so that many can be asked for at once.
    /// @param modifiers with exactly which modifiers; empty for any
    [[nodiscard]] unsigned requestGrab(PhysicalKey key, std::span<const std::uint32_t> modifiers);
    [[nodiscard]] GrabOutcome grabOutcome(unsigned request);
    void removeGrab(PhysicalKey key, std::span<const std::uint32_t> modifiers);
    /// Lets the keyboard go on after a grabbed press.
    void endGrab(DeviceId device);

    /// @return the number of the request, which the reported event carries
    RequestSequence fakeKey(FakeKey key);
    void fakeSecondaryButton(FakeMotion motion);
    void fakePointerMotion(RootPosition position);

    /// The keys that are down for the applications.
    [[nodiscard]] KeycodeSet downKeys();
    [[nodiscard]] ModifierState modifierState();
    /// The keymaps of a keyboard and of the faking device.
    [[nodiscard]] KeyboardMap keyboardMap(DeviceId keyboard, DeviceId faking);
    /// Empty for a keymap that has no names.
    [[nodiscard]] std::optional<KeymapNames> keymapNames(DeviceId device);
    /// Gives a keyboard another keymap. Nothing happens if the server does not find it.
    void loadKeymap(DeviceId device, const KeymapNames& names);
    [[nodiscard]] std::optional<RootPosition> pointerPosition();

private:
    explicit InputConnection(XcbConnection connection, int screen);

    /// @return what the server lacks, nothing if it has everything
    [[nodiscard]] std::optional<QString> prepare();
    void selectEvents();
    [[nodiscard]] XkbKeymap keymapOf(DeviceId device);
    [[nodiscard]] std::optional<ServerEvent> decode(const xcb_generic_event_t& event);
    [[nodiscard]] std::optional<ServerEvent> decodeInput(const xcb_generic_event_t& event);
    [[nodiscard]] std::optional<ServerEvent> decodeXkb(const xcb_generic_event_t& event) const;
    void decodeHierarchy(const xcb_generic_event_t& event);

    XcbConnection m_connection;
    XkbContext m_xkbContext;
    xcb_window_t m_root = 0;
    xcb_atom_t m_fakingDeviceProperty = 0;
    std::deque<ServerEvent> m_keyboardChanges; ///< of one event of the server's, not yet handed out
    std::uint8_t m_inputOpcode = 0;
    std::uint8_t m_xkbFirstEvent = 0;
};

} // namespace tarvin::x11
