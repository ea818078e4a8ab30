#include "actions/content/ContentPerformer.h"

#include "actions/GuardedActions.h"
#include "actions/KeystrokeSynthesis.h"
#include "actions/LaunchActionTable.h"
#include "actions/content/ApplicationLauncher.h"
#include "actions/content/ScreenCapture.h"
#include "actions/content/SnippetPaste.h"
#include "actions/content/WebAddress.h"
#include "actions/content/WebAssistant.h"
#include "actions/system/SystemKeyPresses.h"
#include "platform/ports/ApplicationControl.h"
#include "platform/ports/Workspace.h"

#include <utility>

namespace tarvin {

namespace {

constexpr KeyCode hideKey = 4; // H
constexpr KeyCode showDesktopKey = 103; // F11

} // namespace

ContentPerformer::ContentPerformer(const Collaborators& collaborators)
    : m_with(collaborators)
{ }

void ContentPerformer::executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination)
{
    m_with.capture.executeScreenCapture(mode, destination);
}

void ContentPerformer::pasteText(const QString& text)
{
    m_with.paste.pasteText(text);
}

void ContentPerformer::whenPasteIsPosted(std::function<void()> task)
{
    m_with.paste.whenPosted(std::move(task));
}

void ContentPerformer::openURL(const std::optional<QString>& address)
{
    if (const std::optional<QString> url = webAddress(address))
        m_with.workspace.openUrl(*url);
}

void ContentPerformer::launchApp(const QString& bundleId, const QString& path)
{
    m_with.launcher.launchApp(bundleId, path);
}

void ContentPerformer::executeOpenApplication(const ConfiguredAction& config)
{
    m_with.launcher.executeOpenApplication(config);
}

void ContentPerformer::openApplicationAt(const QString& path)
{
    m_with.applications.openApplication(path);
}

void ContentPerformer::triggerAIAssistant()
{
    m_with.assistant.triggerAIAssistant();
}

void ContentPerformer::smartWorkFocus()
{
    m_with.keys.sendSystemKey(SystemKey::mute);
    if (const LaunchActionRow* notes = launchActionRow(KeyAction::notes))
        m_with.guarded.launchApp(notes->bundleId.toString(), notes->path.toString());
}

void ContentPerformer::smartMeetingMute()
{
    m_with.keys.sendSystemKey(SystemKey::mute);
    m_with.synthesis.simulateKeyStroke(hideKey, EventFlags::command | EventFlags::option, KeystrokeOrigin::builtIn);
}

void ContentPerformer::smartCleanDesk()
{
    m_with.synthesis.simulateKeyStroke(showDesktopKey, EventFlags::none, KeystrokeOrigin::builtIn);
}

} // namespace tarvin
