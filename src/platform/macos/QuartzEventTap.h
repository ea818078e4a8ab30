#pragma once

#include "platform/ports/InputTaps.h"

#include <memory>

namespace tarvin::macos {

/// A tap of the window server in front of all others of its place, able to consume. Its callback runs on the main
/// thread by the main run loop in the common modes, so that it also runs while a menu is open. Main thread only.
class QuartzEventTap final : public EventTap
{
public:
    /// @return null where the system refuses the tap: the program lacks the permission
    [[nodiscard]] static std::unique_ptr<EventTap> create(TapLocation location, InputTaps::TapHandler handler);
    /// The handler may be at work meanwhile; it is called no more afterwards.
    ~QuartzEventTap() override;
    QuartzEventTap(const QuartzEventTap&) = delete;
    QuartzEventTap& operator=(const QuartzEventTap&) = delete;

    void attachToMainLoop() override;
    void detachFromMainLoop() override;
    void enable() override;
    void disable() override;
    [[nodiscard]] bool isEnabled() const override;

private:
    struct Native;
    explicit QuartzEventTap(std::unique_ptr<Native> native);

    std::unique_ptr<Native> m_native;
};

} // namespace tarvin::macos
