#pragma once

#include "platform/ports/WindowControl.h"

#include <memory>

namespace tarvin {

/// The window of the application that has its keyboard focus, else the first of its windows; null if there is none.
[[nodiscard]] inline std::unique_ptr<ControlledWindow> frontWindowOf(WindowControl& control, ProcessIdentifier process)
{
    if (auto focused = control.focusedWindow(process))
        return focused;
    auto windows = control.windows(process);
    return windows.empty() ? nullptr : std::move(windows.front());
}

} // namespace tarvin
