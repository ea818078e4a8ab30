#include "tapd/devices/SeatWatch.h"

#include <systemd/sd-login.h>

namespace tarvin::tapd {

namespace {

/// The seat that every machine has. Others have their own keyboards, which nobody has asked us to serve.
constexpr const char* firstSeat = "seat0";

} // namespace

void SeatWatch::Release::operator()(sd_login_monitor* monitor) const
{
    sd_login_monitor_unref(monitor);
}

SeatWatch::SeatWatch(std::optional<uid_t> fixedUser)
    : m_fixedUser(fixedUser)
{
    sd_login_monitor* monitor = nullptr;
    if (!m_fixedUser && sd_login_monitor_new("seat", &monitor) >= 0)
        m_monitor.reset(monitor);
}

bool SeatWatch::isAtTheSeat(uid_t user) const
{
    if (m_fixedUser)
        return user == *m_fixedUser;
    uid_t active = 0;
    return sd_seat_get_active(firstSeat, nullptr, &active) >= 0 && active == user;
}

int SeatWatch::descriptor() const
{
    return m_monitor ? sd_login_monitor_get_fd(m_monitor.get()) : -1;
}

void SeatWatch::acknowledgeChange()
{
    sd_login_monitor_flush(m_monitor.get());
}

} // namespace tarvin::tapd
