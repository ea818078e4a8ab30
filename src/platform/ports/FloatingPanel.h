#pragma once

#include "platform/ports/Geometry.h"

#include <chrono>
#include <functional>
#include <memory>

namespace tarvin {

/// One floating panel of the program: borderless, see-through where nothing is painted, above ordinary windows, absent
/// from the taskbar and the switcher. Main thread only.
class FloatingPanel
{
public:
    virtual ~FloatingPanel() = default;
    [[nodiscard]] virtual Rect frame() const = 0;
    virtual void setFrame(const Rect& frame) = 0;
    /// 0 for invisible to 1 for opaque, at once; ends a fade that is under way.
    virtual void setAlpha(double alpha) = 0;
    /// Lets the alpha go to the value; returns at once. Where the session cannot blend windows nothing is seen of it.
    virtual void fadeTo(double alpha, std::chrono::milliseconds duration) = 0;
    /// Shows the panel and gives it the keyboard, so that its text field takes typing at once.
    virtual void makeKeyAndOrderFront() = 0;
    virtual void orderOut() = 0;
};

/// Makes the one window of a panel; null where no window can be made.
using MakeFloatingPanel = std::function<std::unique_ptr<FloatingPanel>()>;

/// On how many desktops a panel stands.
enum class PanelSpaces {
    current, ///< the one on which it was opened
    all, ///< every one, and over full screen windows
};

/// What becomes of a panel when another application becomes the active one.
enum class PanelDeactivation {
    stays,
    goesAway, ///< without a word to anybody: its manager goes on to take it for visible
};

/// What is fixed about a panel's window from its making.
struct PanelTraits
{
    Size size;
    PanelSpaces spaces = PanelSpaces::current;
    PanelDeactivation deactivation = PanelDeactivation::stays;
};

} // namespace tarvin
