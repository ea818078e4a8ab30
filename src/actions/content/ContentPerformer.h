#pragma once

#include "actions/seams/ContentActions.h"

namespace tarvin {

class ApplicationControl;
class ApplicationLauncher;
class GuardedActions;
class KeystrokeSynthesis;
class ScreenCapture;
class SnippetPaste;
class SystemKeyPresses;
class WebAssistant;
class Workspace;

/// Brings the actions that produce or open something to those who perform them, and makes the smart ones of what is
/// there.
class ContentPerformer final : public ContentActions
{
public:
    struct Collaborators
    {
        ScreenCapture& capture;
        SnippetPaste& paste;
        ApplicationLauncher& launcher;
        WebAssistant& assistant;
        GuardedActions& guarded; ///< only called later, so it may be made later
        SystemKeyPresses& keys;
        KeystrokeSynthesis& synthesis;
        ApplicationControl& applications;
        Workspace& workspace;
    };

    explicit ContentPerformer(const Collaborators& collaborators);

    void executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination) override;
    void pasteText(const QString& text) override;
    void whenPasteIsPosted(std::function<void()> task) override;
    void openURL(const std::optional<QString>& address) override;
    void launchApp(const QString& bundleId, const QString& path) override;
    void executeOpenApplication(const ConfiguredAction& config) override;
    void openApplicationAt(const QString& path) override;
    void triggerAIAssistant() override;

    /// Toggles mute and opens the notes.
    void smartWorkFocus() override;
    /// Toggles mute and hides the other applications.
    void smartMeetingMute() override;
    /// Shows the desktop.
    void smartCleanDesk() override;

private:
    Collaborators m_with;
};

} // namespace tarvin
