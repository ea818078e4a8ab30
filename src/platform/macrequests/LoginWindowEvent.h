#pragma once

#include "platform/ports/SystemCommands.h"

#include <QStringView>

#include <chrono>
#include <cstdint>

namespace tarvin {

/// The event that the process of the login window gets, field by field. Codes are four letters each.
struct LoginWindowEvent
{
    QStringView targetIdentifier = u"com.apple.loginwindow";
    std::uint32_t eventClass = 0x61657674; ///< aevt
    std::uint32_t eventId = 0;
    std::int16_t returnId = -1; ///< made up by the system
    std::int32_t transactionId = 0;
    std::uint32_t sendOptions = 1; ///< wait for no reply
    std::chrono::seconds timeout{2};
};

[[nodiscard]] constexpr LoginWindowEvent loginWindowEvent(PowerEvent event) noexcept
{
    switch (event) {
    case PowerEvent::shutDown:
        return {.eventId = 0x73687574}; // shut
    case PowerEvent::restart:
        return {.eventId = 0x72657374}; // rest
    }
    return {};
}

} // namespace tarvin
