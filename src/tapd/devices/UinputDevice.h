#pragma once

#include "tapd/protocol/FileDescriptor.h"

#include <linux/input.h>

#include <optional>
#include <span>
#include <string_view>

namespace tarvin::tapd {

/// A keyboard that this process is: what is written to it, the system takes for typed. It has every key there is and
/// the usual lights, so that it stays the same whatever keyboards come and go. It goes with its owner, and what is held
/// on it goes up then.
class UinputDevice
{
public:
    /// Empty where /dev/uinput can't be had.
    [[nodiscard]] static std::optional<UinputDevice> create(std::string_view name, const input_id& id);

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }
    /// Ends the device at once, even if another process shares the open file.
    void destroy();
    /// @return false if the device has failed and must be made anew
    [[nodiscard]] bool write(std::span<const input_event> events) const;
    /// What the system sends to the device: above all the lights. None where there is nothing.
    [[nodiscard]] std::span<const input_event> read(std::span<input_event> buffer) const;

private:
    explicit UinputDevice(FileDescriptor descriptor);

    FileDescriptor m_descriptor;
};

/// Lets go of every key of a device made here, whatever is held; releases of keys that are up do nothing.
void releaseEveryKey(int uinputDescriptor);

} // namespace tarvin::tapd
