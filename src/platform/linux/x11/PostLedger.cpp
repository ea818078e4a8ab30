#include "platform/linux/x11/PostLedger.h"

#include <algorithm>

namespace tarvin::x11 {

namespace {

bool isBefore(RequestSequence first, RequestSequence second)
{
    // The numbers wrap.
    return static_cast<std::int32_t>(first - second) < 0;
}

} // namespace

void PostLedger::expect(FakeKey key, std::int64_t userData, RequestSequence request)
{
    add({.key = key, .userData = userData, .request = request, .time = std::nullopt, .isTaken = false});
}

void PostLedger::expectPosted(FakeKey key, std::int64_t userData)
{
    add({.key = key, .userData = userData, .request = std::nullopt, .time = std::nullopt, .isTaken = false});
}

void PostLedger::add(const Entry& entry)
{
    const std::scoped_lock lock(m_mutex);
    if (m_entries.size() == capacity)
        m_entries.pop_front();
    m_entries.push_back(entry);
}

std::optional<std::int64_t> PostLedger::settlePosted(FakeKey key, ServerTime time)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = std::ranges::find_if(
        m_entries, [&](const Entry& entry) { return isAwaitedFromDevice(entry) && entry.key == key; });
    if (found == m_entries.end())
        return std::nullopt;
    found->time = time;
    const std::int64_t userData = found->userData;
    m_entries.erase(std::remove_if(m_entries.begin(), found, isAwaitedFromDevice), found);
    return userData;
}

void PostLedger::forgetPosted()
{
    const std::scoped_lock lock(m_mutex);
    std::erase_if(m_entries, isAwaitedFromDevice);
}

std::optional<std::int64_t> PostLedger::settle(FakeKey key, ServerTime time, RequestSequence request)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = std::ranges::find_if(
        m_entries, [&](const Entry& entry) { return !entry.time && entry.key == key && entry.request == request; });
    if (found == m_entries.end())
        return std::nullopt;
    found->time = time;
    return found->userData;
}

void PostLedger::passBy(RequestSequence request)
{
    const std::scoped_lock lock(m_mutex);
    std::erase_if(m_entries,
        [=](const Entry& entry) { return !entry.time && entry.request && isBefore(*entry.request, request); });
}

std::optional<std::int64_t> PostLedger::takeOwn(FakeKey key, ServerTime time)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = std::ranges::find_if(m_entries,
        [&](const Entry& entry) { return !entry.isTaken && entry.key == key && (!entry.time || *entry.time == time); });
    if (found == m_entries.end())
        return std::nullopt;
    found->isTaken = true;
    return found->userData;
}

void PostLedger::clear()
{
    const std::scoped_lock lock(m_mutex);
    m_entries.clear();
}

} // namespace tarvin::x11
