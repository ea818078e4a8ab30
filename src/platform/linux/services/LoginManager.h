#pragma once

#include "platform/linux/services/Buses.h"

namespace tarvin::services {

/// The system's login manager, on the system bus.
inline constexpr BusObject loginManager{
    u"org.freedesktop.login1", u"/org/freedesktop/login1", u"org.freedesktop.login1.Manager"};

/// The session of whoever asks or, for a program outside of any, the one in front of its user.
inline constexpr BusObject loginSession{
    u"org.freedesktop.login1", u"/org/freedesktop/login1/session/auto", u"org.freedesktop.login1.Session"};

} // namespace tarvin::services
