#include "platform/macos/MacAppleMenu.h"

#include "platform/macos/AccessibilityElement.h"
#include "platform/macos/translation/AccessibilityOutcome.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace tarvin::macos {

namespace {

std::optional<ProcessIdentifier> finderProcess()
{
    for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications) {
        if ([application.bundleIdentifier isEqualToString:@"com.apple.finder"])
            return application.processIdentifier;
    }
    return std::nullopt;
}

std::optional<AccessibilityElement> firstChild(const std::optional<AccessibilityElement>& parent)
{
    if (!parent)
        return std::nullopt;
    std::vector<AccessibilityElement> children = parent->elements(attribute::children);
    return children.empty() ? std::nullopt : std::optional(std::move(children.front()));
}

/// Bar, then the menu's title in the bar, then the menu below it.
std::optional<AccessibilityElement> appleMenu()
{
    const std::optional<ProcessIdentifier> finder = finderProcess();
    if (!finder)
        return std::nullopt;
    return firstChild(firstChild(AccessibilityElement::ofApplication(*finder).element(attribute::menuBar)));
}

} // namespace

std::optional<QStringList> MacAppleMenu::itemTitles() const
{
    const std::optional<AccessibilityElement> menu = appleMenu();
    if (!menu)
        return std::nullopt;
    QStringList titles;
    for (const AccessibilityElement& item : menu->elements(attribute::children))
        titles.append(item.text(attribute::title).value_or(QString()));
    return titles;
}

void MacAppleMenu::press(qsizetype index)
{
    const std::optional<AccessibilityElement> menu = appleMenu();
    if (!menu)
        return;
    const std::vector<AccessibilityElement> items = menu->elements(attribute::children);
    if (index >= 0 && static_cast<std::size_t>(index) < items.size())
        (void)items[static_cast<std::size_t>(index)].perform(pressAction);
}

} // namespace tarvin::macos
