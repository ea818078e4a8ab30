#pragma once

#include "tapd/engine/KeyBits.h"
#include "tapd/engine/TapEngine.h"
#include "tapd/protocol/FileDescriptor.h"

#include <linux/input.h>

#include <optional>
#include <span>
#include <string>

namespace tarvin::tapd {

/// One event node of the kernel that has customisable keys. Closing it gives it back to the system.
class KeyboardDevice
{
public:
    /// Opens the node if it is one to grab: a keyboard, or the extra buttons of one. Empty for everything else: mice,
    /// touchpads and tablets whatever keys they have, switches, and what can't be opened.
    [[nodiscard]] static std::optional<KeyboardDevice> open(const std::string& path);

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }
    [[nodiscard]] Output output() const { return m_output; }
    [[nodiscard]] const input_id& id() const { return m_id; }

    /// Takes it from everybody else.
    /// @return whether it was free
    [[nodiscard]] bool grab();
    /// Gives it back at once, even if another process shares the open file.
    void release();

    /// Empty once the device has gone.
    [[nodiscard]] std::optional<KeyBits> keysDown() const;
    /// One read. @return the events, none where there are none now; empty once the device has gone
    [[nodiscard]] std::optional<std::span<const input_event>> read(std::span<input_event> buffer) const;
    void setLights(std::span<const input_event> lights) const;

private:
    KeyboardDevice(FileDescriptor descriptor, const input_id& id);

    FileDescriptor m_descriptor;
    input_id m_id;
    Output m_output;
};

} // namespace tarvin::tapd
