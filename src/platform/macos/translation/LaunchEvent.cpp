#include "platform/macos/translation/LaunchEvent.h"

namespace tarvin::macos {

namespace {

constexpr std::uint32_t openApplication = 0x6F617070; // oapp
constexpr std::uint32_t asLoginItem = 0x6C676974; // lgit

} // namespace

bool isLoginItemStart(const std::optional<LaunchEvent>& event) noexcept
{
    return event && event->eventId == openApplication && event->openedAs == asLoginItem;
}

} // namespace tarvin::macos
