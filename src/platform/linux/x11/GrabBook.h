#pragma once

#include "platform/linux/x11/XTypes.h"

#include <cstdint>
#include <map>
#include <vector>

namespace tarvin::x11 {

/// One change to ask of the server.
struct GrabStep
{
    enum class Change : std::uint8_t { install, remove };

    PhysicalKey key;
    Change change = Change::install;
    friend bool operator==(const GrabStep&, const GrabStep&) = default;
};

using GrabSteps = std::vector<GrabStep>;

/// Knows which keys of which keyboards are grabbed and works out the steps from there to what is wanted.
///
/// The grab of one key of one keyboard is
///
///     absent      not wanted, or not asked for yet
///     installed   the server gave it
///     refused     another program has it; asked for again until it is free or no longer wanted
class GrabBook
{
public:
    /// From now on these keys are wanted on every keyboard.
    [[nodiscard]] GrabSteps setWanted(const KeycodeSet& wanted);
    /// A keyboard came, or came back: the server knows nothing of grabs on it.
    [[nodiscard]] GrabSteps addDevice(DeviceId device);
    /// The keyboard has gone, and its grabs with it.
    void removeDevice(DeviceId device);
    /// The server has gone.
    void clear();

    /// What became of an asked-for installation.
    /// @return whether this is news: the key was not refused before
    bool noteRefused(PhysicalKey key);
    /// @return whether the key was refused before
    bool noteInstalled(PhysicalKey key);

    /// To ask again for what was refused.
    [[nodiscard]] GrabSteps retries() const;
    /// The keyboards on which the key is grabbed.
    [[nodiscard]] std::vector<DeviceId> devicesGrabbing(Keycode keycode) const;
    [[nodiscard]] bool isInstalled(PhysicalKey key) const;

private:
    struct Grabs
    {
        KeycodeSet installed;
        KeycodeSet refused;
    };

    KeycodeSet m_wanted;
    std::map<DeviceId, Grabs> m_devices;
};

} // namespace tarvin::x11
