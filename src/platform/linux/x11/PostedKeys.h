#pragma once

#include "platform/linux/x11/XTypes.h"

#include <deque>

namespace tarvin::x11 {

/// The keys of the device that posts for us. What is posted takes its way through the kernel, so the server hears of it
/// later than we know it.
class PostedKeys
{
public:
    void notePost(FakeKey key);
    /// The server reports an event of the device; what was posted before it will not come any more.
    void noteReport(FakeKey key);
    /// Nothing is waited for any more.
    void noteAllArrived() { m_underWay.clear(); }

    [[nodiscard]] bool isUnderWay() const { return !m_underWay.empty(); }
    [[nodiscard]] bool isAnyDown() const { return m_down.any(); }
    [[nodiscard]] bool isDown(Keycode keycode) const { return m_down[keycode]; }
    /// What is down once everything has arrived.
    /// @param down as the server says
    [[nodiscard]] KeycodeSet downAfterArrival(KeycodeSet down) const;

private:
    std::deque<FakeKey> m_underWay;
    KeycodeSet m_down;
};

} // namespace tarvin::x11
