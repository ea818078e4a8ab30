#pragma once

#import <Foundation/Foundation.h>

#include <functional>

@class TarvinAppleEventReceiver;

namespace tarvin::macos {

/// Takes one kind of Apple event for the life of this object. Main thread only.
class AppleEventHandler
{
public:
    AppleEventHandler(AEEventClass eventClass, AEEventID eventId, std::function<void()> handler);
    ~AppleEventHandler();
    AppleEventHandler(const AppleEventHandler&) = delete;
    AppleEventHandler& operator=(const AppleEventHandler&) = delete;

private:
    const AEEventClass m_eventClass;
    const AEEventID m_eventId;
    TarvinAppleEventReceiver* m_receiver; ///< the system does not retain it
};

} // namespace tarvin::macos
