#pragma once

#include "endtoend/support/XClient.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace tarvin::endtoend {

/// Presses keys as a hand does: the server sees them come from a keyboard and repeats them while they are held.
///
/// Keys are named by the codes of <linux/input-event-codes.h>. Each call returns when the server has handled the event.
class PhysicalKeyboard
{
public:
    struct Step
    {
        enum class Motion { press, release };
        std::uint16_t key = 0;
        Motion motion = Motion::press;
    };

    /// @param device the keyboard's name; see `XServer`
    PhysicalKeyboard(const std::string& display, const std::string& device);

    void press(std::uint16_t key);
    void release(std::uint16_t key);
    void tap(std::uint16_t key);
    /// Holds the first keys while it taps the last.
    void chord(std::initializer_list<std::uint16_t> keys);
    /// Everything in one go: no other program gets a word in between.
    void play(const std::vector<Step>& steps);

    /// Unplugs the keyboard as far as programs can see, or plugs it in again.
    void setEnabled(bool enabled);

private:
    void send(const Step& step);

    XClient m_client;
    std::uint8_t m_device = 0;
    std::uint8_t m_firstEvent = 0;
};

/// What lies between the codes of keys and the keycodes of the X protocol.
inline constexpr std::uint8_t keycodeOffset = 8;

/// Shorthand for `PhysicalKeyboard::play`.
[[nodiscard]] inline PhysicalKeyboard::Step down(std::uint16_t key)
{
    return {key, PhysicalKeyboard::Step::Motion::press};
}
[[nodiscard]] inline PhysicalKeyboard::Step up(std::uint16_t key)
{
    return {key, PhysicalKeyboard::Step::Motion::release};
}

} // namespace tarvin::endtoend
