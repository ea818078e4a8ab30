#include "platform/simulated/SimulatedAppleMenu.h"

#include "platform/simulated/SimulatedWorkspace.h"

#include <algorithm>

namespace tarvin::simulated {

SimulatedAppleMenu::SimulatedAppleMenu(EffectLog& log, const SimulatedWorkspace& workspace)
    : m_log(log)
    , m_workspace(workspace)
    , m_titles(QStringList{u"About This Mac"_qs, QString(), u"System Settings…"_qs, u"App Store…"_qs, QString(),
          u"Recent Items"_qs, QString(), u"Force Quit…"_qs, QString(), u"Sleep"_qs, u"Restart…"_qs, u"Shut Down…"_qs,
          QString(), u"Lock Screen"_qs, u"Log Out…"_qs})
{ }

std::optional<QStringList> SimulatedAppleMenu::itemTitles() const
{
    m_log.expectMainThread("AppleMenu::itemTitles");
    const std::vector<RunningApplication> running = m_workspace.runningApplications();
    const bool canBeReached = std::ranges::any_of(running, [](const RunningApplication& application) {
        return application.bundleIdentifiers.contains(u"com.apple.finder");
    });
    return canBeReached ? m_titles : std::nullopt;
}

void SimulatedAppleMenu::press(qsizetype index)
{
    m_log.expectMainThread("AppleMenu::press");
    const QStringList titles = itemTitles().value_or(QStringList());
    if (index < 0 || index >= titles.size()) {
        m_log.record(PortMisused{u"AppleMenu::press"_qs, u"an index of itemTitles"_qs});
        return;
    }
    m_log.record(AppleMenuPressed{titles[index]});
}

} // namespace tarvin::simulated
