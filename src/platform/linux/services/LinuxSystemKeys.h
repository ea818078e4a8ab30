#pragma once

#include "platform/ports/SystemKeys.h"

namespace tarvin::mixer {
class PulseMixer;
}

namespace tarvin::services {

class Backlight;
class MprisPlayers;

/// What the system's own keys do on a Linux desktop, done once for each press.
class LinuxSystemKeys : public SystemKeys
{
public:
    LinuxSystemKeys(mixer::PulseMixer& mixer, MprisPlayers& players, Backlight& backlight);

    void post(SystemKey key, SystemKeyMotion motion) override;

private:
    mixer::PulseMixer& m_mixer;
    MprisPlayers& m_players;
    Backlight& m_backlight;
};

} // namespace tarvin::services
