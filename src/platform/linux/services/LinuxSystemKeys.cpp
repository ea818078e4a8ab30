#include "platform/linux/services/LinuxSystemKeys.h"

#include "platform/linux/mixer/PulseMixer.h"
#include "platform/linux/services/Backlight.h"
#include "platform/linux/services/MprisPlayers.h"

namespace tarvin::services {

namespace {

/// Points of a hundred that one press is worth.
constexpr int volumeStep = 6;

} // namespace

LinuxSystemKeys::LinuxSystemKeys(mixer::PulseMixer& mixer, MprisPlayers& players, Backlight& backlight)
    : m_mixer(mixer)
    , m_players(players)
    , m_backlight(backlight)
{ }

void LinuxSystemKeys::post(SystemKey key, SystemKeyMotion motion)
{
    if (motion == SystemKeyMotion::up)
        return;
    switch (key) {
    case SystemKey::soundUp:
        m_mixer.changeOutputVolume(volumeStep);
        break;
    case SystemKey::soundDown:
        m_mixer.changeOutputVolume(-volumeStep);
        break;
    case SystemKey::brightnessUp:
        m_backlight.change(Backlight::Step::up);
        break;
    case SystemKey::brightnessDown:
        m_backlight.change(Backlight::Step::down);
        break;
    case SystemKey::mute:
        m_mixer.toggleOutputMute();
        break;
    case SystemKey::play:
        m_players.send(MediaCommand::playPause);
        break;
    case SystemKey::next:
        m_players.send(MediaCommand::next);
        break;
    case SystemKey::previous:
        m_players.send(MediaCommand::previous);
        break;
    }
}

} // namespace tarvin::services
