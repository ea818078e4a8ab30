#pragma once

#include "platform/linux/desktop/FocusSettler.h"
#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XConnection.h"

#include "platform/ports/Workspace.h"

#include <QObject>

namespace tarvin::desktop {

/// The applications of an X session, by the extended window manager hints.
///
/// An application is a process with windows. Its identifier is the name of its desktop entry without suffix (see
/// `DesktopEntryCatalog::match`), followed by those of the roles it fills; one without an entry has none, and the
/// program itself has `applicationId`. The front application is kept current by events, so asking for it costs nothing.
/// Without an X server, or with a window manager that does not know these hints, no application is in front.
class EwmhWorkspace : public QObject, public Workspace
{
    Q_OBJECT

public:
    using OwnUrlHandler = std::function<void(const QString& url)>;

    /// @param openOwnUrl takes the addresses of the program's own scheme; called on a later turn
    /// @param pixelsPerPoint how many pixels of the server one logical point of the toolkit has
    EwmhWorkspace(XConnection& connection, InstalledApplications& applications, Scheduler& scheduler,
        OwnUrlHandler openOwnUrl, double pixelsPerPoint = 1);

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override;
    /// Those with windows, in the order in which they came.
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override;
    /// Finds processes without windows too; they have the policy `prohibited`.
    [[nodiscard]] std::optional<RunningApplication> applicationWithProcess(ProcessIdentifier process) const override;
    [[nodiscard]] std::vector<OnScreenWindow> onScreenWindows() const override;
    void activate(ProcessIdentifier process) override;
    void openUrl(const QString& url) override;
    [[nodiscard]] std::unique_ptr<WorkspaceObserver> observeActivation(ActivationHandler handler) override;

    /// Whether the front application is a terminal emulator.
    [[nodiscard]] bool isTerminalInFront() const;

Q_SIGNALS:
    void frontApplicationChanged(const std::optional<tarvin::RunningApplication>& application);

private:
    void startWatching();
    void stopWatching();
    void handleEvent(const xcb_generic_event_t& event);
    void readFrontWindow();
    void frontWindowSettled();
    void identifyFrontApplication();
    void watchWindow(xcb_window_t window, std::uint32_t eventMask);
    [[nodiscard]] RunningApplication applicationOf(const WindowFacts& window) const;
    [[nodiscard]] std::vector<WindowFacts> windowsFrontToBack() const;

    XConnection& m_connection;
    InstalledApplications& m_applications;
    Scheduler& m_scheduler;
    OwnUrlHandler m_openOwnUrl;
    double m_pixelsPerPoint;
    FocusSettler m_focus;
    xcb_window_t m_watchedFrontWindow = XCB_NONE; ///< its class may change after it was shown
    xcb_window_t m_managerWindow = XCB_NONE; ///< its end is the window manager's
    std::optional<RunningApplication> m_frontApplication;
};

} // namespace tarvin::desktop
