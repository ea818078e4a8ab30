#pragma once

#include "platform/linux/windows/WindowPlacer.h"
#include "platform/ports/WindowControl.h"

namespace tarvin::windows {

/// The windows of other applications in an X session, by the extended window manager hints. Windows that no manager
/// manages (menus, pop-ups) are none of these, nor are panels and the desktop.
class EwmhWindowControl : public WindowControl
{
public:
    /// @param pixelsPerPoint how many pixels of the server one logical point of the toolkit has
    EwmhWindowControl(desktop::XConnection& connection, Scheduler& scheduler, double pixelsPerPoint = 1);

    [[nodiscard]] std::unique_ptr<ControlledWindow> focusedWindow(ProcessIdentifier process) override;
    /// Front to back; those that are minimised or on another desktop come last.
    [[nodiscard]] std::vector<std::unique_ptr<ControlledWindow>> windows(ProcessIdentifier process) override;

private:
    desktop::XConnection& m_connection;
    WindowPlacer m_placer;
    double m_pixelsPerPoint;
};

} // namespace tarvin::windows
