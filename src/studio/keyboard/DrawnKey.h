#pragma once

#include "studio/keyboard/KeycapPainter.h"
#include "ui/AnimatedValue.h"

#include <functional>
#include <memory>

namespace tarvin {

/// One key as it is drawn now, on its way from one state to the next.
class DrawnKey
{
public:
    /// @param changed called after each step of a movement
    DrawnKey(const Keycap& keycap, std::function<void()> changed);

    [[nodiscard]] const Keycap& keycap() const { return m_keycap; }
    [[nodiscard]] const KeycapState& state() const { return m_state; }
    [[nodiscard]] const KeycapLook& look() const { return m_look; }
    [[nodiscard]] const KeycapContent& content() const { return m_content; }
    /// How far the key may reach beyond its box until it comes to rest.
    [[nodiscard]] double reach() const;

    void setContent(const KeycapContent& content) { m_content = content; }
    void moveTo(const KeycapState& state, const Motion& motion);
    void jumpTo(const KeycapState& state);

private:
    const Keycap& m_keycap;
    std::function<void()> m_changed;
    KeycapState m_state;
    KeycapContent m_content;
    KeycapLook m_from;
    KeycapLook m_to;
    KeycapLook m_look;
    std::unique_ptr<AnimatedValue> m_progress; ///< made when the key first moves
};

} // namespace tarvin
