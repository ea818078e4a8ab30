#include "actions/system/ForceQuit.h"

#include "actions/KeystrokeSynthesis.h"
#include "actions/OwnApplication.h"
#include "actions/ScriptRunner.h"
#include "actions/TargetApplication.h"
#include "interception/TriggerNotice.h"
#include "platform/ports/ApplicationControl.h"

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

constexpr KeyCode escapeKey = 53;

/// Protected by any part of the identifier, the name or the path of the program file, in lower case.
constexpr QStringView protectedEverywhere = u"antigravity";

/// Protected by a part of the identifier.
constexpr auto protectedIdentifiers =
    std::to_array<QStringView>({u"apple.dt.xcode", u"apple.terminal", u"iterm", u"vscode"});

} // namespace

ForceQuit::ForceQuit(const Collaborators& collaborators)
    : m_with(collaborators)
{ }

void ForceQuit::forceQuitFrontmostApplication()
{
    const QString myBundleId = ownIdentifierOrDefault(m_with.processInfo);
    const std::optional<RunningApplication> target = m_with.targets.resolveTargetApplication(myBundleId);
    if (!target || target->bundleIdentifier() == myBundleId) {
        m_with.notice.recordTriggerDirectly(u"No background app — Opening Dialog"_qs);
        openSystemForceQuitDialog();
        return;
    }
    const QString name = target->localizedName.isEmpty() ? u"Application"_qs : target->localizedName;
    if (isProtected(*target)) {
        m_with.notice.recordTriggerDirectly(u"Protected Development Environment: "_qs + name);
        return;
    }
    end(*target, name);
}

void ForceQuit::openSystemForceQuitDialog()
{
    m_with.scripts.runAsyncAppleScript(OpenForceQuitDialog{});
    m_with.synthesis.simulateKeyStroke(escapeKey, EventFlags::command | EventFlags::option, KeystrokeOrigin::builtIn);
    m_with.notice.recordTriggerDirectly(u"Force Quit Dialog (⌥⌘⎋)"_qs);
}

bool ForceQuit::isProtected(const RunningApplication& target) const
{
    const QString executable = m_with.applications.executableOf(target.processIdentifier).value_or(QString());
    if (target.localizedName.toLower().contains(protectedEverywhere)
        || executable.toLower().contains(protectedEverywhere))
        return true;
    return std::ranges::any_of(target.bundleIdentifiers, [](const QString& identifier) {
        const QString lowerCase = identifier.toLower();
        return lowerCase.contains(protectedEverywhere)
            || std::ranges::any_of(protectedIdentifiers, [&](QStringView part) { return lowerCase.contains(part); });
    });
}

void ForceQuit::end(const RunningApplication& target, const QString& name)
{
    const ProcessIdentifier process = target.processIdentifier;
    if (target.bundleIdentifiers.contains(u"com.apple.finder")) {
        // The desktop can't be without its file manager, so it is only started afresh.
        m_with.applications.forceTerminate(process);
        m_with.scripts.runAsyncAppleScript(ActivateFileManager{});
        m_with.notice.recordTriggerDirectly(u"Relaunched Finder"_qs);
        return;
    }
    const bool isAccepted = m_with.applications.forceTerminate(process);
    if (!isAccepted || !m_with.applications.isTerminated(process))
        m_with.applications.kill(process);
    m_with.notice.recordTriggerDirectly(u"Force Quit: "_qs + name);
}

} // namespace tarvin
