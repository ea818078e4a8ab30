#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>

struct sd_login_monitor;

namespace tarvin::tapd {

/// Knows whose session has the seat now, and so whose keyboards these are.
class SeatWatch
{
public:
    /// @param fixedUser who counts as the user of the seat without anybody being asked, for a trial by hand
    explicit SeatWatch(std::optional<uid_t> fixedUser);

    [[nodiscard]] bool isAtTheSeat(uid_t user) const;
    /// To be watched for readability; negative where no change will be told.
    [[nodiscard]] int descriptor() const;
    /// To be called when the descriptor is readable: something has changed.
    void acknowledgeChange();

private:
    struct Release
    {
        void operator()(sd_login_monitor* monitor) const;
    };

    std::optional<uid_t> m_fixedUser;
    std::unique_ptr<sd_login_monitor, Release> m_monitor;
};

} // namespace tarvin::tapd
