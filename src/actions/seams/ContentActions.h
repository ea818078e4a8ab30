#pragma once

#include "model/ConfiguredAction.h"

#include <QString>

#include <functional>
#include <optional>

namespace tarvin {

/// The actions that produce or open something. Main thread only; each call returns once its work has started.
class ContentActions
{
public:
    virtual ~ContentActions() = default;

    /// Never called in test-safe mode.
    virtual void executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination) = 0;
    /// Inserts the text into the application in front. Called inside a preparation and never in test-safe mode.
    virtual void pasteText(const QString& text) = 0;
    /// Runs the task once nothing that was to be pasted waits for the clipboard any more; at once, as a rule.
    virtual void whenPasteIsPosted(std::function<void()> task) = 0;
    /// Opens an address; without one, or with a blank one, the default address. Never called in test-safe mode.
    virtual void openURL(const std::optional<QString>& address) = 0;
    /// Opens the application with the identifier or, if it is not installed, whatever stands at the path, which may
    /// be empty. Never called in test-safe mode.
    virtual void launchApp(const QString& bundleId, const QString& path) = 0;
    /// Brings the record's application forward, or launches it. Never called in test-safe mode.
    virtual void executeOpenApplication(const ConfiguredAction& config) = 0;
    /// Opens the application at the path, in test-safe mode too.
    virtual void openApplicationAt(const QString& path) = 0;
    /// Hands the selection of the application in front to the web assistant, whose page opens in test-safe mode too.
    virtual void triggerAIAssistant() = 0;

    virtual void smartWorkFocus() = 0;
    virtual void smartMeetingMute() = 0;
    virtual void smartCleanDesk() = 0;
};

} // namespace tarvin
