#include "platform/linux/windows/EwmhWindowControl.h"

#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/windows/EwmhWindow.h"

#include <algorithm>

namespace tarvin::windows {

using desktop::WindowFacts;
using desktop::XAtom;

namespace {

/// Panels and pop-ups float above this layer; see `WindowFacts::layer`.
constexpr int highestWindowLayer = 3;

bool isOrdinary(const WindowFacts& facts)
{
    return !facts.isDesktop && facts.layer <= highestWindowLayer;
}

} // namespace

EwmhWindowControl::EwmhWindowControl(desktop::XConnection& connection, Scheduler& scheduler, double pixelsPerPoint)
    : m_connection(connection)
    , m_placer(connection, scheduler)
    , m_pixelsPerPoint(pixelsPerPoint)
{ }

std::unique_ptr<ControlledWindow> EwmhWindowControl::focusedWindow(ProcessIdentifier process)
{
    const std::optional<xcb_window_t> active = desktop::activeWindow(m_connection);
    if (!active || process <= 0)
        return nullptr;
    const std::vector<WindowFacts> facts = desktop::readWindows(m_connection, {*active});
    if (facts.empty() || facts.front().process != process || !isOrdinary(facts.front()))
        return nullptr;
    return std::make_unique<EwmhWindow>(m_connection, m_placer, *active, m_pixelsPerPoint);
}

std::vector<std::unique_ptr<ControlledWindow>> EwmhWindowControl::windows(ProcessIdentifier process)
{
    std::vector<xcb_window_t> numbers = desktop::windowList(m_connection, XAtom::netClientListStacking);
    std::reverse(numbers.begin(), numbers.end());
    std::vector<WindowFacts> facts = desktop::readWindows(m_connection, numbers);
    std::erase_if(
        facts, [&](const WindowFacts& one) { return process <= 0 || one.process != process || !isOrdinary(one); });
    std::stable_partition(facts.begin(), facts.end(), [](const WindowFacts& one) { return one.isOnScreen; });
    std::vector<std::unique_ptr<ControlledWindow>> windows;
    windows.reserve(facts.size());
    for (const WindowFacts& one : facts)
        windows.push_back(std::make_unique<EwmhWindow>(m_connection, m_placer, one.window, m_pixelsPerPoint));
    return windows;
}

} // namespace tarvin::windows
