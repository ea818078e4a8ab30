#include "platform/linux/x11/PostedKeys.h"

#include <algorithm>

namespace tarvin::x11 {

void PostedKeys::notePost(FakeKey key)
{
    m_underWay.push_back(key);
    m_down[key.keycode] = key.motion == FakeMotion::press;
}

void PostedKeys::noteReport(FakeKey key)
{
    const auto found = std::ranges::find(m_underWay, key);
    if (found != m_underWay.end())
        m_underWay.erase(m_underWay.begin(), found + 1);
}

KeycodeSet PostedKeys::downAfterArrival(KeycodeSet down) const
{
    for (const FakeKey& key : m_underWay)
        down[key.keycode] = key.motion == FakeMotion::press;
    return down;
}

} // namespace tarvin::x11
