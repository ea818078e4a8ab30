#pragma once

#include "tapd/devices/UinputDevice.h"
#include "tapd/main/GuardLink.h"
#include "tapd/service/EventOutputs.h"

#include <linux/input.h>

#include <array>
#include <bitset>
#include <optional>
#include <span>

namespace tarvin::tapd {

/// The devices that the daemon makes: one that re-emits what passes, a second one of the kind where a machine's own
/// keyboard is grabbed, and one for what the application posts.
class OutputDevices final : public EventOutputs
{
public:
    explicit OutputDevices(const GuardLink& guard)
        : m_guard(guard)
    { }

    /// Makes the device for posting, and the one that speaks for ordinary keyboards.
    /// @return whether they could be made
    [[nodiscard]] bool make();
    /// Makes the output for a keyboard where it is not there yet. It takes over the identity of the first internal
    /// keyboard, by which desktops know which touchpad belongs to it.
    /// @return whether it is there
    [[nodiscard]] bool makeFor(Output output, const input_id& id);
    [[nodiscard]] bool has(Output output) const { return m_outputs[indexOf(output)].has_value(); }
    /// Whether a device has failed since it was made.
    [[nodiscard]] bool haveFailed() const { return m_haveFailed; }
    /// Gives up the devices. What is held on them goes up.
    void destroy();
    void releaseEverything() const;

    void write(Output output, std::span<const input_event> events) override;
    void post(std::span<const input_event> events) override;

    /// To be watched for readability; negative where it is not there.
    [[nodiscard]] int descriptor(Output output) const;
    /// Reads what the session wants of the lights.
    /// @return whether it was anything
    [[nodiscard]] bool readLights(Output output);
    /// The present lights, as events to be written to a keyboard.
    [[nodiscard]] std::span<const input_event> lights(Output output);

private:
    [[nodiscard]] static std::size_t indexOf(Output output) { return static_cast<std::size_t>(output); }

    const GuardLink& m_guard;
    std::array<std::optional<UinputDevice>, outputCount> m_outputs;
    std::optional<UinputDevice> m_posting;
    std::array<std::bitset<LED_CNT>, outputCount> m_lights;
    std::array<input_event, LED_CNT + 1> m_lightEvents{};
    bool m_haveFailed = false;
};

} // namespace tarvin::tapd
