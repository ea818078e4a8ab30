#include "platform/macos/QuartzEventTap.h"

#include "platform/macos/CfHandle.h"
#include "platform/macos/EventTranslation.h"

#include <utility>

namespace tarvin::macos {

static_assert(kCGHIDEventTap == static_cast<std::uint32_t>(TapLocation::hid));
static_assert(kCGSessionEventTap == static_cast<std::uint32_t>(TapLocation::session));

struct QuartzEventTap::Native
{
    // Shared with the callback at work, because the handler may destroy its own tap.
    std::shared_ptr<InputTaps::TapHandler> handler;
    CfHandle<CFMachPortRef> port;
    CfHandle<CFRunLoopSourceRef> source;

    static CGEventRef onEvent(CGEventTapProxy, CGEventType type, CGEventRef event, void* context)
    {
        @autoreleasepool {
            // The context is not retained by the system. It lives: the port that calls is invalid once it has gone.
            const auto handler = static_cast<Native*>(context)->handler;
            const std::optional<InputEvent> translated = inputEventOf(recordOf(type, event));
            if (translated && (*handler)(*translated) == EventVerdict::consume)
                return nullptr;
            // Not owned by us before, and not afterwards.
            return event;
        }
    }
};

QuartzEventTap::QuartzEventTap(std::unique_ptr<Native> native)
    : m_native(std::move(native))
{ }

std::unique_ptr<EventTap> QuartzEventTap::create(TapLocation location, InputTaps::TapHandler handler)
{
    auto native = std::make_unique<Native>();
    native->handler = std::make_shared<InputTaps::TapHandler>(std::move(handler));
    native->port = CfHandle(CGEventTapCreate(static_cast<CGEventTapLocation>(location), kCGHeadInsertEventTap,
        kCGEventTapOptionDefault, inputEventMask, &Native::onEvent, native.get()));
    if (!native->port)
        return nullptr;
    // The system hands out taps that are at work already.
    CGEventTapEnable(native->port.get(), false);
    native->source = CfHandle(CFMachPortCreateRunLoopSource(kCFAllocatorDefault, native->port.get(), 0));
    if (!native->source) {
        CFMachPortInvalidate(native->port.get());
        return nullptr;
    }
    return std::unique_ptr<EventTap>(new QuartzEventTap(std::move(native)));
}

QuartzEventTap::~QuartzEventTap()
{
    disable();
    detachFromMainLoop();
    CFMachPortInvalidate(m_native->port.get());
}

void QuartzEventTap::attachToMainLoop()
{
    CFRunLoopAddSource(CFRunLoopGetMain(), m_native->source.get(), kCFRunLoopCommonModes);
}

void QuartzEventTap::detachFromMainLoop()
{
    CFRunLoopRemoveSource(CFRunLoopGetMain(), m_native->source.get(), kCFRunLoopCommonModes);
}

void QuartzEventTap::enable()
{
    CGEventTapEnable(m_native->port.get(), true);
}

void QuartzEventTap::disable()
{
    CGEventTapEnable(m_native->port.get(), false);
}

bool QuartzEventTap::isEnabled() const
{
    return CGEventTapIsEnabled(m_native->port.get());
}

} // namespace tarvin::macos
