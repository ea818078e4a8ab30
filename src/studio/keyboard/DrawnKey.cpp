#include "studio/keyboard/DrawnKey.h"

#include <algorithm>

namespace tarvin {

DrawnKey::DrawnKey(const Keycap& keycap, std::function<void()> changed)
    : m_keycap(keycap)
    , m_changed(std::move(changed))
    , m_content(plainContent(keycap))
    , m_from(keycapLook(keycap, m_state))
    , m_to(m_from)
    , m_look(m_from)
{ }

double DrawnKey::reach() const
{
    return std::max(keycapReach(m_look), keycapReach(m_to));
}

void DrawnKey::moveTo(const KeycapState& state, const Motion& motion)
{
    if (!m_progress) {
        m_progress = std::make_unique<AnimatedValue>(0, [this] {
            // At its end exactly what it should be, without the rounding of the way there.
            m_look = m_progress->value() == 1 ? m_to : between(m_from, m_to, m_progress->value());
            m_changed();
        });
    }
    m_state = state;
    m_from = m_to = m_look; // so that the jump back to the start shows nothing
    m_progress->jumpTo(0);
    m_to = keycapLook(m_keycap, state);
    m_progress->animateTo(1, motion);
}

void DrawnKey::jumpTo(const KeycapState& state)
{
    m_progress.reset();
    m_state = state;
    m_from = m_to = m_look = keycapLook(m_keycap, state);
    m_changed();
}

} // namespace tarvin
