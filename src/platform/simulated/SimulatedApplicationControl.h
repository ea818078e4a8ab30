#pragma once

#include "platform/ports/ApplicationControl.h"
#include "platform/simulated/EffectLog.h"

#include <map>
#include <vector>

namespace tarvin::simulated {

class SimulatedFiles;
class SimulatedScheduler;
class SimulatedWorkspace;

/// What becomes of an application that is told to end without saving.
enum class ForceQuitAnswer {
    endsLater, ///< accepts, and is gone on a later turn
    endsAtOnce,
    refuses,
};

/// An application that is there to be started.
struct InstalledApplication
{
    QString path;
    QString name;
    QStringList bundleIdentifiers; ///< its own first
};

/// The applications that are installed, and the life and death of those that run. One that is started comes to the
/// front on a later turn.
class SimulatedApplicationControl final : public ApplicationControl
{
public:
    SimulatedApplicationControl(
        EffectLog& log, SimulatedScheduler& scheduler, SimulatedWorkspace& workspace, const SimulatedFiles& files);

    [[nodiscard]] std::optional<QString> pathOfApplication(const QString& bundleIdentifier) const override;
    /// An application is installed there, or a file lies there.
    [[nodiscard]] bool exists(const QString& path) const override;
    void openApplication(const QString& path) override;
    void openPath(const QString& path) override;
    [[nodiscard]] std::optional<QString> executableOf(ProcessIdentifier process) const override;
    bool forceTerminate(ProcessIdentifier process) override;
    [[nodiscard]] bool isTerminated(ProcessIdentifier process) const override;
    void kill(ProcessIdentifier process) override;

    /// Installs the application, or replaces the one at its path.
    void install(const InstalledApplication& application);
    /// The program file of a running application; nothing for one that can't be told.
    void setExecutable(ProcessIdentifier process, const std::optional<QString>& path);
    /// `endsLater` where nothing else was said.
    void setForceQuitAnswer(ProcessIdentifier process, ForceQuitAnswer answer) { m_answers[process] = answer; }

private:
    [[nodiscard]] QString nameOf(ProcessIdentifier process) const;
    void startOrActivate(const QString& path);
    void end(ProcessIdentifier process);

    EffectLog& m_log;
    SimulatedScheduler& m_scheduler;
    SimulatedWorkspace& m_workspace;
    const SimulatedFiles& m_files;
    std::vector<InstalledApplication> m_installed;
    std::map<ProcessIdentifier, QString> m_executables;
    std::map<ProcessIdentifier, ForceQuitAnswer> m_answers;
};

} // namespace tarvin::simulated
