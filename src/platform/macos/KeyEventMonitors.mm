#include "platform/macos/KeyEventMonitors.h"

#include "platform/macos/EventTranslation.h"

#include <utility>

namespace tarvin::macos {

namespace {

class KeyEventMonitor final : public EventMonitor
{
public:
    explicit KeyEventMonitor(id token)
        : m_token(token)
    { }
    KeyEventMonitor(const KeyEventMonitor&) = delete;
    KeyEventMonitor& operator=(const KeyEventMonitor&) = delete;
    ~KeyEventMonitor() override { [NSEvent removeMonitor:m_token]; }

private:
    id m_token; ///< retained here; the toolkit's own reference ends with the removal
};

std::unique_ptr<EventMonitor> monitorOf(id token)
{
    return token ? std::make_unique<KeyEventMonitor>(token) : nullptr;
}

} // namespace

std::unique_ptr<EventMonitor> addGlobalKeyMonitor(InputTaps::MonitorHandler handler)
{
    const auto shared = std::make_shared<InputTaps::MonitorHandler>(std::move(handler));
    return monitorOf(
        [NSEvent addGlobalMonitorForEventsMatchingMask:inputEventMask
                                               handler:^(NSEvent* event) {
                                                   const auto alive = shared;
                                                   if (const auto translated = inputEventOf(recordOf(event)))
                                                       (*alive)(*translated);
                                               }]);
}

std::unique_ptr<EventMonitor> addLocalKeyMonitor(InputTaps::LocalMonitorHandler handler)
{
    const auto shared = std::make_shared<InputTaps::LocalMonitorHandler>(std::move(handler));
    return monitorOf([NSEvent addLocalMonitorForEventsMatchingMask:inputEventMask
                                                           handler:^NSEvent*(NSEvent* event) {
                                                               const auto alive = shared;
                                                               const auto translated = inputEventOf(recordOf(event));
                                                               const bool isConsumed = translated
                                                                   && (*alive)(*translated) == EventVerdict::consume;
                                                               return isConsumed ? nil : event;
                                                           }]);
}

} // namespace tarvin::macos
