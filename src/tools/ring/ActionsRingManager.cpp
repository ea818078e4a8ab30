#include "tools/ring/ActionsRingManager.h"

#include "platform/ports/Pointer.h"

#include <utility>

namespace tarvin {

using namespace std::chrono_literals;

ActionsRingManager::ActionsRingManager(
    Collaborators collaborators, const Pointer& pointer, std::function<void(const ConfiguredAction&)> execute)
    : FadingPanel(std::move(collaborators), {.in = 180ms, .out = 150ms})
    , m_pointer(pointer)
    , m_execute(std::move(execute))
{ }

void ActionsRingManager::show()
{
    FloatingPanel* const ring = madeWindow();
    if (!ring)
        return;
    const Point pointer = m_pointer.position();
    const Size size = ring->frame().size;
    ring->setFrame({.origin = {pointer.x - size.width / 2, pointer.y - size.height / 2}, .size = size});
    present(*ring);
}

void ActionsRingManager::select(const ConfiguredAction& action)
{
    hide();
    m_execute(action);
}

} // namespace tarvin
