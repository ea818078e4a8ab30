#pragma once

#include "platform/simulated/SimulatedPlatform.h"

#include <QStringList>

#include <functional>

namespace tarvin {
class TriggerNotice;
}

namespace tarvin::test {

/// Records from now on what the notice says. The platform outlives the notice.
void watchNotice(TriggerNotice& notice, simulated::SimulatedPlatform& platform);

/// What happens on the desktop from the deed until all is quiet, one line per event: the time in milliseconds since the
/// call, then what happened. The clearing of a notice is left out, and so is what the deed does not cause by itself.
///   "0 down 8 command"           a key event, with " recorded" behind it if the user recorded the keystroke
///   "0 click down at 3,4"        an event of the secondary button
///   "0 system mute down"         an event of one of the system's own keys
///   "0 script tell …"            a script ran, with its whole source
///   "0 tool /usr/bin/pmset sleepnow", "0 login window restart", "0 menu Sleep"
///   "0 set AXPosition 0,25 of a", "0 press AXMinimizeButton of a"     windows; with " refused" behind it
///   "0 open /a", "0 open application /a", "0 url https://a", "0 clipboard text"
///   "0 force terminate Mail", "0 kill Mail"
///   "0 notice Copied (⌘C)"       a notice came up
///   "0 activate Safari"          an application was asked to come forward
///   "0 anything else"            a line that the test itself put on the console
[[nodiscard]] QStringList transcriptOf(simulated::SimulatedPlatform& platform, const std::function<void()>& deed);

} // namespace tarvin::test
