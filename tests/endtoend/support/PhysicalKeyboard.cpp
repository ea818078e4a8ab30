#include "endtoend/support/PhysicalKeyboard.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <stdexcept>

namespace tarvin::endtoend {

PhysicalKeyboard::PhysicalKeyboard(const std::string& display, const std::string& device)
    : m_client(display)
    , m_device(static_cast<std::uint8_t>(m_client.deviceNamed(device)))
{
    if (m_device == 0)
        throw std::runtime_error("no keyboard named " + device);
    m_firstEvent = xcb_get_extension_data(m_client.get(), &xcb_input_id)->first_event;
}

void PhysicalKeyboard::press(std::uint16_t key)
{
    play({down(key)});
}

void PhysicalKeyboard::release(std::uint16_t key)
{
    play({up(key)});
}

void PhysicalKeyboard::tap(std::uint16_t key)
{
    press(key);
    release(key);
}

void PhysicalKeyboard::chord(std::initializer_list<std::uint16_t> keys)
{
    for (const std::uint16_t key : keys)
        press(key);
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
        release(*key);
}

void PhysicalKeyboard::play(const std::vector<Step>& steps)
{
    for (const Step& step : steps)
        send(step);
    m_client.sync();
}

void PhysicalKeyboard::send(const Step& step)
{
    const auto kind = step.motion == Step::Motion::press ? XCB_INPUT_DEVICE_KEY_PRESS : XCB_INPUT_DEVICE_KEY_RELEASE;
    // An event type of the first version of the input extension names the device instead of the faking one.
    xcb_test_fake_input(m_client.get(), static_cast<std::uint8_t>(m_firstEvent + kind),
        static_cast<std::uint8_t>(step.key + keycodeOffset), XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, m_device);
}

void PhysicalKeyboard::setEnabled(bool enabled)
{
    auto value = static_cast<std::uint8_t>(enabled ? 1 : 0);
    constexpr std::uint8_t bits = 8;
    xcb_input_xi_change_property_items_t items{};
    items.data8 = &value;
    xcb_input_xi_change_property_aux(m_client.get(), m_device, XCB_PROP_MODE_REPLACE, bits,
        m_client.atom("Device Enabled"), XCB_ATOM_INTEGER, 1, &items);
    m_client.sync();
}

} // namespace tarvin::endtoend
