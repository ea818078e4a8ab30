#include "platform/linux/desktop/LinuxScripts.h"

#include "platform/linux/desktop/UrlOpener.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace tarvin::desktop {

namespace {

/// Folders of the documents as seen from the folder of the executable.
constexpr auto documentFolders = std::to_array<QStringView>({
    u"../share/doc/tarvin", // installed
    u"docs", // unpacked beside the program
    u"../../docs", // build/release below the sources
});
/// A browser shows the first better than an editor the second.
constexpr auto pageNames = std::to_array<QStringView>({u"granting-access.html", u"granting-access.md"});

/// Of a road beside one that has done it.
const ScriptResult silence{};

} // namespace

LinuxScripts::LinuxScripts(QStringList pageCandidates, Means means)
    : m_pageCandidates(std::move(pageCandidates))
    , m_means(std::move(means))
{ }

QStringList LinuxScripts::accessPageCandidates(const QString& executable)
{
    const QString folder = executable.section(u'/', 0, -2);
    QStringList candidates;
    for (const QStringView documents : documentFolders) {
        for (const QStringView name : pageNames)
            candidates += QDir::cleanPath(QStringLiteral("%1/%2/%3").arg(folder, documents, name));
    }
    return candidates;
}

std::optional<ScriptResult> LinuxScripts::run(const Script& script)
{
    using Result = std::optional<ScriptResult>;
    struct Performer
    {
        const LinuxScripts& scripts;
        Result operator()(const OpenAccessibilityPage&) const { return scripts.openAccessPage(); }
        Result operator()(const PressKeyByScript&) const { return silence; }
        Result operator()(const SetLoginItem&) const { return silence; }
        Result operator()(const AdjustOutputVolume&) const { return silence; }
        Result operator()(const ToggleOutputMute&) const { return silence; }
        Result operator()(const ControlMediaPlayer&) const { return silence; }
        Result operator()(const ToggleMicrophone&) const
        {
            return scripts.m_means.toggleMicrophone ? scripts.m_means.toggleMicrophone() : std::nullopt;
        }
        Result operator()(const RequestPowerByScript&) const { return silence; }
        Result operator()(const ActivateFileManager&) const
        {
            if (scripts.m_means.activateFileManager)
                scripts.m_means.activateFileManager();
            return silence;
        }
        Result operator()(const OpenForceQuitDialog&) const { return silence; }
        Result operator()(const SnapWindowByScript&) const { return silence; }
        Result operator()(const ToggleFullScreenByScript&) const { return silence; }
        Result operator()(const MinimizeWindowByScript&) const { return silence; }
    };
    return std::visit(Performer{*this}, script);
}

ScriptResult LinuxScripts::openAccessPage() const
{
    for (const QString& page : m_pageCandidates) {
        if (!QFileInfo(page).isFile())
            continue;
        if (UrlOpener::open(page))
            return {};
        return {.error = QStringLiteral("Nothing on this system opens %1").arg(page), .text = std::nullopt};
    }
    return {.error = QStringLiteral("The page on granting access is not installed"), .text = std::nullopt};
}

} // namespace tarvin::desktop
