#include "tapd/main/OutputDevices.h"

#include "tapd/protocol/DeviceNames.h"

#include <cstdio>
#include <string_view>

namespace tarvin::tapd {

namespace {

constexpr std::array<std::string_view, outputCount> names{internalOutputName, externalOutputName};
/// The name of the posting device among the outputs, for the guard.
constexpr std::uint32_t postingOutput = outputCount;

/// Numbers that nobody else has for a virtual keyboard; TV and TP in ASCII.
constexpr input_id externalId{.bustype = BUS_USB, .vendor = 0x5456, .product = 0x0001, .version = 1};
constexpr input_id postingId{.bustype = BUS_VIRTUAL, .vendor = 0x5456, .product = 0x0002, .version = 1};

constexpr std::array<std::uint16_t, 5> lightCodes{LED_NUML, LED_CAPSL, LED_SCROLLL, LED_COMPOSE, LED_KANA};

} // namespace

bool OutputDevices::make()
{
    m_haveFailed = false;
    if (!m_posting) {
        m_posting = UinputDevice::create(postingDeviceName, postingId);
        if (!m_posting)
            return false;
        m_guard.tell({.kind = GuardNotice::Kind::outputOpened, .name = postingOutput}, m_posting->descriptor());
    }
    return makeFor(Output::external, externalId);
}

bool OutputDevices::makeFor(Output output, const input_id& id)
{
    auto& device = m_outputs[indexOf(output)];
    if (device)
        return true;
    device = UinputDevice::create(names[indexOf(output)], output == Output::internal ? id : externalId);
    if (device) {
        m_guard.tell({.kind = GuardNotice::Kind::outputOpened, .name = static_cast<std::uint32_t>(output)},
            device->descriptor());
    }
    return device.has_value();
}

void OutputDevices::destroy()
{
    for (std::uint32_t name = 0; name <= postingOutput; ++name)
        m_guard.tell({.kind = GuardNotice::Kind::outputClosed, .name = name}, -1);
    for (auto* const device : {&m_outputs[0], &m_outputs[1], &m_posting}) {
        if (*device)
            (*device)->destroy();
        device->reset();
    }
    m_lights = {};
}

void OutputDevices::releaseEverything() const
{
    for (const auto& device : m_outputs) {
        if (device)
            releaseEveryKey(device->descriptor());
    }
}

void OutputDevices::write(Output output, std::span<const input_event> events)
{
    const auto& device = m_outputs[indexOf(output)];
    if (device && !device->write(events)) {
        std::perror("tarvin-tapd: writing to the re-emitting device");
        m_haveFailed = true;
    }
}

void OutputDevices::post(std::span<const input_event> events)
{
    if (m_posting && !m_posting->write(events))
        m_haveFailed = true;
}

int OutputDevices::descriptor(Output output) const
{
    const auto& device = m_outputs[indexOf(output)];
    return device ? device->descriptor() : -1;
}

bool OutputDevices::readLights(Output output)
{
    constexpr std::size_t eventsPerRead = 16;
    std::array<input_event, eventsPerRead> buffer{};
    const auto& device = m_outputs[indexOf(output)];
    bool isLight = false;
    if (!device)
        return false;
    for (const input_event& event : device->read(buffer)) {
        if (event.type == EV_LED && event.code < LED_CNT) {
            m_lights[indexOf(output)][event.code] = event.value != 0;
            isLight = true;
        }
    }
    return isLight;
}

std::span<const input_event> OutputDevices::lights(Output output)
{
    std::size_t count = 0;
    for (const std::uint16_t code : lightCodes) {
        input_event& event = m_lightEvents[count++];
        event = {};
        event.type = EV_LED;
        event.code = code;
        event.value = m_lights[indexOf(output)][code] ? 1 : 0;
    }
    m_lightEvents[count] = {};
    m_lightEvents[count++].type = EV_SYN;
    return std::span(m_lightEvents).first(count);
}

} // namespace tarvin::tapd
