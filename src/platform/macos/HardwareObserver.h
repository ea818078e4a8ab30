#pragma once

#include "platform/ports/InputTaps.h"

#include <memory>

namespace tarvin::macos {

/// Raw values of keyboards, consumer controls and the vendor page, by the main run loop in the common modes. It takes
/// nothing away from anyone. Main thread only; destroying it from within its handler is not allowed.
class HardwareObserver final : public HidManager
{
public:
    explicit HardwareObserver(InputTaps::HidHandler handler);
    ~HardwareObserver() override;
    HardwareObserver(const HardwareObserver&) = delete;
    HardwareObserver& operator=(const HardwareObserver&) = delete;

    /// False without the system's permission to watch input.
    [[nodiscard]] bool isOpen() const override;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace tarvin::macos
