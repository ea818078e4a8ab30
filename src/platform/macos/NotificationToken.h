#pragma once

#import <Foundation/Foundation.h>

#include <functional>
#include <memory>
#include <utility>

namespace tarvin::macos {

/// When a notification reaches its handler.
enum class NotificationDelivery {
    mainQueue, ///< in a turn of the main queue, whatever thread posts it
    whilePosted, ///< before the call that posts it returns, on the thread of that call
};

/// One observation of a notification, from making to destruction. The handler may destroy the token; it is called no
/// more afterwards.
class NotificationToken
{
public:
    using Handler = std::function<void(NSNotification*)>;

    NotificationToken(
        NSNotificationCenter* center, NSNotificationName name, NotificationDelivery delivery, Handler handler)
        : m_center(center)
    {
        const auto shared = std::make_shared<Handler>(std::move(handler));
        m_observer =
            [center addObserverForName:name
                                object:nil
                                 queue:delivery == NotificationDelivery::mainQueue ? NSOperationQueue.mainQueue : nil
                            usingBlock:^(NSNotification* notification) {
                                const auto alive = shared;
                                (*alive)(notification);
                            }];
    }
    NotificationToken(NotificationToken&& other) noexcept
        : m_center(std::exchange(other.m_center, nil))
        , m_observer(std::exchange(other.m_observer, nil))
    { }
    NotificationToken& operator=(NotificationToken&&) = delete;
    NotificationToken(const NotificationToken&) = delete;
    NotificationToken& operator=(const NotificationToken&) = delete;
    ~NotificationToken()
    {
        if (m_observer)
            [m_center removeObserver:m_observer];
    }

private:
    NSNotificationCenter* m_center;
    id<NSObject> m_observer; ///< the center retains it too, until it is removed
};

} // namespace tarvin::macos
