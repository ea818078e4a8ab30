#include "tools/support/ToolsDesktop.h"

namespace tarvin::test {

ToolsDesktop::ToolsDesktop()
    : ports(platform.ports())
    , log(ports.files, ports.scheduler)
    , testEnvironment(ports.processInfo)
{
    platform.workspace().setFrontmost({
        .processIdentifier = safariProcess,
        .bundleIdentifiers = {u"com.apple.Safari"_qs},
        .localizedName = u"Safari"_qs,
    });
    platform.scheduler().runPosted();
    platform.effects().clear();
}

FadingPanel::Collaborators ToolsDesktop::panelCollaborators(const PanelTraits& traits)
{
    return {
        .makeWindow = [this, traits]() -> std::unique_ptr<FloatingPanel> {
            if (!canMakeWindows)
                return nullptr;
            auto window = std::make_unique<simulated::SimulatedFloatingPanel>(
                platform.effects(), platform.appShell(), platform.workspace(), u"Panel"_qs, traits);
            panel = window.get();
            ++windowsMade;
            return window;
        },
        .appShell = ports.appShell,
        .scheduler = ports.scheduler,
    };
}

QStringList ToolsDesktop::logLines()
{
    platform.scheduler().runPosted();
    QStringList lines;
    for (const simulated::FileChanged& change : effects().all<simulated::FileChanged>()) {
        if (change.path == log.filePath())
            lines << QString::fromUtf8(change.content).trimmed();
    }
    return lines;
}

} // namespace tarvin::test
