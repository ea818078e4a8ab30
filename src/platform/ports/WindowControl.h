#pragma once

#include "platform/ports/Geometry.h"
#include "platform/ports/Workspace.h"

#include <memory>
#include <optional>
#include <vector>

namespace tarvin {

/// A window of another application. Main thread only. Reading gives nothing, and writing false, where the window has
/// gone, does not have the attribute, or the program may not touch it.
///
/// Position and size are those of the window with its frame.
class ControlledWindow
{
public:
    virtual ~ControlledWindow() = default;
    [[nodiscard]] virtual std::optional<Point> position() const = 0;
    [[nodiscard]] virtual std::optional<Size> size() const = 0;
    virtual bool setPosition(Point position) = 0;
    virtual bool setSize(Size size) = 0;
    [[nodiscard]] virtual std::optional<bool> isFullScreen() const = 0;
    virtual bool setFullScreen(bool isFullScreen) = 0;
    virtual bool setMinimized(bool isMinimized) = 0;
    /// Presses the button in the title bar; false if the window has none.
    virtual bool pressFullScreenButton() = 0;
    virtual bool pressMinimizeButton() = 0;
};

/// Finds the windows of other applications. Main thread only.
class WindowControl
{
public:
    virtual ~WindowControl() = default;
    /// The window of the application that has its keyboard focus; null if none can be read.
    [[nodiscard]] virtual std::unique_ptr<ControlledWindow> focusedWindow(ProcessIdentifier process) = 0;
    /// All windows of the application, the front one first.
    [[nodiscard]] virtual std::vector<std::unique_ptr<ControlledWindow>> windows(ProcessIdentifier process) = 0;
};

} // namespace tarvin
