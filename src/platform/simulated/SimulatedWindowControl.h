#pragma once

#include "platform/ports/WindowControl.h"
#include "platform/simulated/EffectLog.h"

#include <set>

namespace tarvin::simulated {

/// What of a window can be read, written or pressed.
enum class WindowPart { position, size, fullScreen, minimized, fullScreenButton, minimizeButton };

/// A window of another application.
struct AccessibleWindow
{
    ProcessIdentifier process = 0;
    QString title{};
    bool hasFocus = true;
    Rect frame{};
    bool isFullScreen = false;
    bool isMinimized = false;
    std::set<WindowPart> unreadable{}; ///< reading gives nothing
    std::set<WindowPart> unwritable{}; ///< writing fails, pressing too
};

/// The windows as they were told, which do what they are asked unless told otherwise. Each write is recorded.
class SimulatedWindowControl final : public WindowControl
{
public:
    explicit SimulatedWindowControl(EffectLog& log)
        : m_log(log)
    { }

    /// The first of the application's windows that has the focus.
    [[nodiscard]] std::unique_ptr<ControlledWindow> focusedWindow(ProcessIdentifier process) override;
    [[nodiscard]] std::vector<std::unique_ptr<ControlledWindow>> windows(ProcessIdentifier process) override;

    /// From front to back, of all applications.
    void setWindows(std::vector<AccessibleWindow> windows) { m_windows = std::move(windows); }
    [[nodiscard]] const std::vector<AccessibleWindow>& accessibleWindows() const { return m_windows; }

private:
    class Window;

    EffectLog& m_log;
    std::vector<AccessibleWindow> m_windows;
};

} // namespace tarvin::simulated
