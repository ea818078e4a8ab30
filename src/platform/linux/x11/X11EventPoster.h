#pragma once

#include "platform/linux/x11/BuiltInKeystrokes.h"
#include "platform/linux/x11/InputThread.h"
#include "platform/ports/EventPoster.h"

#include <QString>

#include <functional>
#include <vector>

namespace tarvin::x11 {

/// Posts keystrokes and clicks into an X session. Both locations are the same place here: an event that we post never
/// reaches our own tap, only our own windows and, marked, the tap that watches while the Studio is active.
///
/// The flags of a stroke are exact for Shift, Control, Option and Command, whatever the user holds; the fn flag has no
/// meaning here, and Caps Lock stays as it is. A chord that names a key twice is seen as two strokes of it.
class X11EventPoster final : public EventPoster
{
public:
    /// What the poster asks of the desktop. A missing function stands for "no".
    struct Desktop
    {
        std::function<bool()> isTerminalInFront;
        /// @return whether the desktop has such a function
        std::function<bool(DesktopFunction)> perform;
        std::function<void(const QString&)> log;
    };

    /// @param pixelsPerPoint how many pixels of the root window make one logical point; null for one
    X11EventPoster(InputThread& thread, Desktop desktop, std::function<double()> pixelsPerPoint = {});

    [[nodiscard]] bool canMakeKey(KeyCode keyCode) const override;
    void postKey(const SyntheticKey& key, TapLocation location) override;
    [[nodiscard]] bool canMakeClick() const override;
    void postSecondaryClick(const SyntheticClick& click, TapLocation location) override;

private:
    /// A built-in keystroke keeps the meaning that it had when it went down.
    struct OpenBuiltIn
    {
        KeyCode keyCode = 0;
        EventFlags flags = EventFlags::none;
        BuiltInMeaning meaning;
    };

    [[nodiscard]] BuiltInMeaning meaningOf(const SyntheticKey& key);
    void perform(DesktopFunction function) const;

    InputThread& m_thread;
    Desktop m_desktop;
    std::function<double()> m_pixelsPerPoint;
    std::vector<OpenBuiltIn> m_openBuiltIns;
};

} // namespace tarvin::x11
