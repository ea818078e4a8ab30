#include "platform/simulated/SimulatedWindowControl.h"

namespace tarvin::simulated {

/// Finds its window anew each time, which may have gone.
class SimulatedWindowControl::Window final : public ControlledWindow
{
public:
    Window(SimulatedWindowControl& owner, const AccessibleWindow& window)
        : m_owner(owner)
        , m_process(window.process)
        , m_title(window.title)
    { }

    [[nodiscard]] std::optional<Point> position() const override
    {
        const AccessibleWindow* window = readable(WindowPart::position);
        return window != nullptr ? std::optional(window->frame.origin) : std::nullopt;
    }
    [[nodiscard]] std::optional<Size> size() const override
    {
        const AccessibleWindow* window = readable(WindowPart::size);
        return window != nullptr ? std::optional(window->frame.size) : std::nullopt;
    }
    [[nodiscard]] std::optional<bool> isFullScreen() const override
    {
        const AccessibleWindow* window = readable(WindowPart::fullScreen);
        return window != nullptr ? std::optional(window->isFullScreen) : std::nullopt;
    }
    bool setPosition(Point position) override
    {
        AccessibleWindow* window = written(WindowPart::position, position);
        if (window != nullptr)
            window->frame.origin = position;
        return window != nullptr;
    }
    bool setSize(Size size) override
    {
        AccessibleWindow* window = written(WindowPart::size, size);
        if (window != nullptr)
            window->frame.size = size;
        return window != nullptr;
    }
    bool setFullScreen(bool isFullScreen) override
    {
        AccessibleWindow* window = written(WindowPart::fullScreen, isFullScreen);
        if (window != nullptr)
            window->isFullScreen = isFullScreen;
        return window != nullptr;
    }
    bool setMinimized(bool isMinimized) override
    {
        AccessibleWindow* window = written(WindowPart::minimized, isMinimized);
        if (window != nullptr)
            window->isMinimized = isMinimized;
        return window != nullptr;
    }
    bool pressFullScreenButton() override
    {
        AccessibleWindow* window = pressed(WindowPart::fullScreenButton);
        if (window != nullptr)
            window->isFullScreen = !window->isFullScreen;
        return window != nullptr;
    }
    bool pressMinimizeButton() override
    {
        AccessibleWindow* window = pressed(WindowPart::minimizeButton);
        if (window != nullptr)
            window->isMinimized = true;
        return window != nullptr;
    }

private:
    [[nodiscard]] AccessibleWindow* found() const
    {
        for (AccessibleWindow& window : m_owner.m_windows) {
            if (window.process == m_process && window.title == m_title)
                return &window;
        }
        return nullptr;
    }
    [[nodiscard]] const AccessibleWindow* readable(WindowPart part) const
    {
        m_owner.m_log.expectMainThread("ControlledWindow, reading");
        const AccessibleWindow* window = found();
        return window != nullptr && !window->unreadable.contains(part) ? window : nullptr;
    }
    /// The window if the write gets through; recorded in any case.
    [[nodiscard]] AccessibleWindow* written(WindowPart part, const WindowAttributeValue& value)
    {
        m_owner.m_log.expectMainThread("ControlledWindow, writing");
        AccessibleWindow* window = found();
        const bool isRefused = window == nullptr || window->unwritable.contains(part);
        m_owner.m_log.record(WindowAttributeSet{m_process, m_title, attributeOf(part), value, isRefused});
        return isRefused ? nullptr : window;
    }
    /// The same for a button; there is nothing to press where it can't be read.
    [[nodiscard]] AccessibleWindow* pressed(WindowPart part)
    {
        m_owner.m_log.expectMainThread("ControlledWindow, pressing");
        AccessibleWindow* window = found();
        if (window == nullptr || window->unreadable.contains(part))
            return nullptr;
        const bool isRefused = window->unwritable.contains(part);
        m_owner.m_log.record(WindowButtonPressed{m_process, m_title, attributeOf(part), isRefused});
        return isRefused ? nullptr : window;
    }
    [[nodiscard]] static QString attributeOf(WindowPart part)
    {
        switch (part) {
        case WindowPart::position:
            return u"AXPosition"_qs;
        case WindowPart::size:
            return u"AXSize"_qs;
        case WindowPart::fullScreen:
            return u"AXFullScreen"_qs;
        case WindowPart::minimized:
            return u"AXMinimized"_qs;
        case WindowPart::fullScreenButton:
            return u"AXFullScreenButton"_qs;
        case WindowPart::minimizeButton:
            return u"AXMinimizeButton"_qs;
        }
        return {};
    }

    SimulatedWindowControl& m_owner;
    ProcessIdentifier m_process;
    QString m_title;
};

std::unique_ptr<ControlledWindow> SimulatedWindowControl::focusedWindow(ProcessIdentifier process)
{
    m_log.expectMainThread("WindowControl::focusedWindow");
    for (const AccessibleWindow& window : m_windows) {
        if (window.process == process && window.hasFocus)
            return std::make_unique<Window>(*this, window);
    }
    return nullptr;
}

std::vector<std::unique_ptr<ControlledWindow>> SimulatedWindowControl::windows(ProcessIdentifier process)
{
    m_log.expectMainThread("WindowControl::windows");
    std::vector<std::unique_ptr<ControlledWindow>> windows;
    for (const AccessibleWindow& window : m_windows) {
        if (window.process == process)
            windows.push_back(std::make_unique<Window>(*this, window));
    }
    return windows;
}

} // namespace tarvin::simulated
