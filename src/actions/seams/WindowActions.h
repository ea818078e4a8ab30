#pragma once

#include "model/WindowSnapPosition.h"

namespace tarvin {

/// Moves and sizes the front window of the target application, in test-safe mode too. Main thread only; called on a
/// turn of the main queue of its own, never inside the key press.
class WindowActions
{
public:
    virtual ~WindowActions() = default;
    virtual void snapFrontWindow(WindowSnapPosition position) = 0;
    virtual void minimizeFrontWindow() = 0;
    virtual void toggleFrontWindowFullscreen() = 0;
};

} // namespace tarvin
