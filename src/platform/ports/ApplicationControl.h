#pragma once

#include "platform/ports/Workspace.h"

#include <QString>

#include <optional>

namespace tarvin {

/// Finds, starts and ends applications. Main thread only; nothing here waits for an application.
class ApplicationControl
{
public:
    virtual ~ApplicationControl() = default;
    /// Where the application with the identifier is installed; well-known identifiers find the desktop's own
    /// application of that role.
    [[nodiscard]] virtual std::optional<QString> pathOfApplication(const QString& bundleIdentifier) const = 0;
    /// Whether anything stands at the path.
    [[nodiscard]] virtual bool exists(const QString& path) const = 0;
    /// Starts the application at the path, or brings it forward if it runs.
    virtual void openApplication(const QString& path) = 0;
    /// Opens whatever stands at the path as a double click would: an application, a folder, a document. An empty path
    /// opens nothing.
    virtual void openPath(const QString& path) = 0;
    /// The program file of a running application; nothing if it has gone or can't be told.
    [[nodiscard]] virtual std::optional<QString> executableOf(ProcessIdentifier process) const = 0;
    /// Ends the application without letting it save. @return whether the request could be made
    virtual bool forceTerminate(ProcessIdentifier process) = 0;
    [[nodiscard]] virtual bool isTerminated(ProcessIdentifier process) const = 0;
    /// Sends the signal that no process can refuse.
    virtual void kill(ProcessIdentifier process) = 0;
};

} // namespace tarvin
