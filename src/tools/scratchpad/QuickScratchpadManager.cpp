#include "tools/scratchpad/QuickScratchpadManager.h"

#include "platform/ports/Preferences.h"
#include "platform/ports/Screens.h"

#include <utility>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr double heightAboveMiddle = 50;

} // namespace

Rect scratchpadFrame(const Rect& visibleFrame)
{
    const Size size = QuickScratchpadManager::traits.size;
    const double middleX = visibleFrame.origin.x + visibleFrame.size.width / 2;
    const double middleY = visibleFrame.origin.y + visibleFrame.size.height / 2;
    return {
        .origin = {.x = middleX - size.width / 2, .y = middleY - size.height / 2 - heightAboveMiddle}, .size = size};
}

QuickScratchpadManager::QuickScratchpadManager(
    Collaborators collaborators, const Screens& screens, Preferences& preferences, Pasteboard& pasteboard)
    : FadingPanel(collaborators, {.in = 160ms, .out = 120ms})
    , m_screens(screens)
    , m_preferences(preferences)
    , m_note(preferences, pasteboard, collaborators.scheduler)
{ }

void QuickScratchpadManager::show()
{
    FloatingPanel* const panel = madeWindow();
    if (!panel)
        return;
    if (const std::optional<Screen> screen = m_screens.mainScreen())
        panel->setFrame(scratchpadFrame(screen->visibleFrame));
    m_note.load();
    present(*panel);
}

QString QuickScratchpadManager::storedContent() const
{
    return m_preferences.value(ScratchpadNote::storageKey.toString()).toString();
}

void QuickScratchpadManager::setStoredContent(const QString& text)
{
    m_preferences.setValue(ScratchpadNote::storageKey.toString(), text);
}

} // namespace tarvin
