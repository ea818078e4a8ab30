#include "platform/macos/HardwareObserver.h"

#include "platform/macos/CfHandle.h"
#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/HidMatching.h"

#import <IOKit/hid/IOHIDManager.h>

#include <utility>

namespace tarvin::macos {

struct HardwareObserver::Native
{
    InputTaps::HidHandler handler;
    CfHandle<IOHIDManagerRef> manager;
    bool isOpen = false;

    static void onValue(void* context, IOReturn result, void*, IOHIDValueRef value)
    {
        if (result != kIOReturnSuccess || !value)
            return;
        const IOHIDElementRef element = IOHIDValueGetElement(value);
        static_cast<Native*>(context)->handler({
            .page = IOHIDElementGetUsagePage(element),
            .usage = IOHIDElementGetUsage(element),
            .value = IOHIDValueGetIntegerValue(value),
        });
    }
};

namespace {

NSArray* matchingDictionaries()
{
    NSMutableArray* const dictionaries = [NSMutableArray array];
    for (const HidMatch& match : hidMatches) {
        NSMutableDictionary<NSString*, NSNumber*>* const dictionary = [NSMutableDictionary dictionary];
        dictionary[nsString(hidUsagePageKey)] = @(match.usagePage);
        if (match.usage)
            dictionary[nsString(hidUsageKey)] = @(*match.usage);
        [dictionaries addObject:dictionary];
    }
    return dictionaries;
}

} // namespace

HardwareObserver::HardwareObserver(InputTaps::HidHandler handler)
    : m_native(std::make_unique<Native>())
{
    m_native->handler = std::move(handler);
    m_native->manager = CfHandle(IOHIDManagerCreate(kCFAllocatorDefault, kIOHIDOptionsTypeNone));
    const IOHIDManagerRef manager = m_native->manager.get();
    if (!manager)
        return;
    IOHIDManagerSetDeviceMatchingMultiple(manager, (__bridge CFArrayRef)matchingDictionaries());
    IOHIDManagerRegisterInputValueCallback(manager, &Native::onValue, m_native.get());
    IOHIDManagerScheduleWithRunLoop(manager, CFRunLoopGetMain(), kCFRunLoopCommonModes);
    m_native->isOpen = IOHIDManagerOpen(manager, kIOHIDOptionsTypeNone) == kIOReturnSuccess;
}

HardwareObserver::~HardwareObserver()
{
    const IOHIDManagerRef manager = m_native->manager.get();
    if (!manager)
        return;
    // The context is not retained by the system, so nothing may call after this.
    IOHIDManagerRegisterInputValueCallback(manager, nullptr, nullptr);
    IOHIDManagerUnscheduleFromRunLoop(manager, CFRunLoopGetMain(), kCFRunLoopCommonModes);
    if (m_native->isOpen)
        IOHIDManagerClose(manager, kIOHIDOptionsTypeNone);
}

bool HardwareObserver::isOpen() const
{
    return m_native->isOpen;
}

} // namespace tarvin::macos
