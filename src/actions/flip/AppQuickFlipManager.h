#pragma once

#include "actions/seams/QuickFlip.h"
#include "platform/ports/Workspace.h"

#include <QObject>

#include <memory>
#include <optional>

namespace tarvin {

class ApplicationControl;
class ProcessInfo;
class Scheduler;
class TriggerNotice;

/// Bounces between two applications: the last two that were active, or the one in front and a chosen companion. A
/// bounce changes nothing here; the activation that follows it swaps the pair. Main thread only.
class AppQuickFlipManager : public QObject, public QuickFlip
{
    Q_OBJECT
    Q_PROPERTY(std::optional<tarvin::RunningApplication> currentApp READ currentApp NOTIFY pairChanged)
    Q_PROPERTY(std::optional<tarvin::RunningApplication> previousApp READ previousApp NOTIFY pairChanged)

public:
    struct Collaborators
    {
        Workspace& workspace;
        ApplicationControl& applications;
        const ProcessInfo& processInfo;
        TriggerNotice& notice;
        Scheduler& scheduler;
    };

    /// Begins with the application in front and follows from then on.
    explicit AppQuickFlipManager(const Collaborators& collaborators);
    ~AppQuickFlipManager() override;

    /// The application that came to the front last, as it was then.
    [[nodiscard]] const std::optional<RunningApplication>& currentApp() const { return m_currentApp; }
    /// The one before; it may have ended since.
    [[nodiscard]] const std::optional<RunningApplication>& previousApp() const { return m_previousApp; }

    /// Listens to the workspace from now on; done at creation already.
    void startTracking();

    void quickFlip(const std::optional<QString>& companionBundleId) override;

Q_SIGNALS:
    void pairChanged();

private:
    void handleAppActivation(const RunningApplication& application);
    [[nodiscard]] bool flipWithCompanion(
        const std::optional<RunningApplication>& front, const QString& companionBundleId);
    [[nodiscard]] bool flipToPrevious(const std::optional<RunningApplication>& front);
    void flipToAnyOther(const std::optional<RunningApplication>& front);
    void activate(const RunningApplication& application, const QString& notice);
    [[nodiscard]] bool isOwn(const RunningApplication& application) const;
    /// The previous application, unless there is none or it has ended.
    [[nodiscard]] std::optional<RunningApplication> livePrevious() const;

    Collaborators m_with;
    std::optional<RunningApplication> m_currentApp;
    std::optional<RunningApplication> m_previousApp;
    std::unique_ptr<WorkspaceObserver> m_observer;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(); ///< held weakly by what is still to come
};

} // namespace tarvin
