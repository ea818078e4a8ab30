#include "platform/macos/shell/AppleEventHandler.h"

#include <utility>

@interface TarvinAppleEventReceiver : NSObject
- (instancetype)initWithHandler:(std::function<void()>)handler;
- (void)handleEvent:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply;
@end

@implementation TarvinAppleEventReceiver {
    std::function<void()> _handler;
}

- (instancetype)initWithHandler:(std::function<void()>)handler
{
    self = [super init];
    if (self)
        _handler = std::move(handler);
    return self;
}

- (void)handleEvent:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply
{
    (void)event;
    (void)reply;
    _handler();
}

@end

namespace tarvin::macos {

AppleEventHandler::AppleEventHandler(AEEventClass eventClass, AEEventID eventId, std::function<void()> handler)
    : m_eventClass(eventClass)
    , m_eventId(eventId)
    , m_receiver([[TarvinAppleEventReceiver alloc] initWithHandler:std::move(handler)])
{
    [NSAppleEventManager.sharedAppleEventManager setEventHandler:m_receiver
                                                     andSelector:@selector(handleEvent:withReplyEvent:)
                                                   forEventClass:m_eventClass
                                                      andEventID:m_eventId];
}

AppleEventHandler::~AppleEventHandler()
{
    [NSAppleEventManager.sharedAppleEventManager removeEventHandlerForEventClass:m_eventClass andEventID:m_eventId];
}

} // namespace tarvin::macos
