#include "platform/macos/MacWindowControl.h"

#include "platform/macos/AccessibilityElement.h"
#include "platform/macos/translation/AccessibilityOutcome.h"

#include <utility>

namespace tarvin::macos {

namespace {

class AccessibilityWindow final : public ControlledWindow
{
public:
    explicit AccessibilityWindow(AccessibilityElement element)
        : m_element(std::move(element))
    { }

    [[nodiscard]] std::optional<Point> position() const override { return m_element.point(attribute::position); }
    [[nodiscard]] std::optional<Size> size() const override { return m_element.size(attribute::size); }
    bool setPosition(Point position) override { return m_element.setPoint(attribute::position, position); }
    bool setSize(Size size) override { return m_element.setSize(attribute::size, size); }
    [[nodiscard]] std::optional<bool> isFullScreen() const override { return m_element.truth(attribute::fullScreen); }
    bool setFullScreen(bool isFullScreen) override { return m_element.setTruth(attribute::fullScreen, isFullScreen); }
    bool setMinimized(bool isMinimized) override { return m_element.setTruth(attribute::minimized, isMinimized); }
    bool pressFullScreenButton() override { return press(attribute::fullScreenButton); }
    bool pressMinimizeButton() override { return press(attribute::minimizeButton); }

private:
    bool press(const char* button)
    {
        const std::optional<AccessibilityElement> element = m_element.element(button);
        return element && element->perform(pressAction);
    }

    AccessibilityElement m_element;
};

} // namespace

std::unique_ptr<ControlledWindow> MacWindowControl::focusedWindow(ProcessIdentifier process)
{
    auto window = AccessibilityElement::ofApplication(process).element(attribute::focusedWindow);
    return window ? std::make_unique<AccessibilityWindow>(std::move(*window)) : nullptr;
}

std::vector<std::unique_ptr<ControlledWindow>> MacWindowControl::windows(ProcessIdentifier process)
{
    std::vector<std::unique_ptr<ControlledWindow>> windows;
    for (AccessibilityElement& element : AccessibilityElement::ofApplication(process).elements(attribute::windows))
        windows.push_back(std::make_unique<AccessibilityWindow>(std::move(element)));
    return windows;
}

} // namespace tarvin::macos
