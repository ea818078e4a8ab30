#pragma once

#include "endtoend/support/ChildProcess.h"
#include "endtoend/support/WindowManager.h"
#include "endtoend/support/XServer.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvin::endtoend {

/// Runs the event loop for a while; only for seeing that something does not happen.
void letPass(std::chrono::milliseconds time);

/// The next line of the child that begins so; those before it are dropped. Empty if none comes in time.
[[nodiscard]] std::optional<QString> lineFrom(ChildProcess& child, const char* beginning);

/// Everything that the child still says, to its end.
[[nodiscard]] QStringList remainingLinesFrom(ChildProcess& child);

/// An X server, a window manager and a session bus of one's own, with a private home.
class PrivateDesktop
{
public:
    enum class Part { windowManager, sessionBus };

    /// Why the machine has no such desktop, in words for a skipped test; empty if it has.
    [[nodiscard]] static std::optional<std::string> lack();

    /// Returns when everything is ready.
    explicit PrivateDesktop(const std::vector<Part>& parts);

    [[nodiscard]] QByteArray display() const { return QByteArray::fromStdString(m_display); }
    [[nodiscard]] QString path(const char* name) const { return m_home.filePath(QString::fromLatin1(name)); }
    void putFile(const char* name, const QByteArray& content, QFile::Permissions permissions = {}) const;

    /// For the programs that are started from now on.
    void setEnvironment(const std::string& variable, const std::string& value);
    [[nodiscard]] std::string environment(const std::string& variable) const;

    /// Starts one of the programs built beside the test; it takes lines.
    [[nodiscard]] std::unique_ptr<ChildProcess> start(
        const std::string& program, const std::vector<std::string>& arguments = {}) const;
    /// Starts any program, by its path or as the search path has it; it takes lines.
    [[nodiscard]] std::unique_ptr<ChildProcess> run(
        const std::string& program, const std::vector<std::string>& arguments = {}) const;
    /// A window of a process of its own; shown when this returns.
    [[nodiscard]] std::unique_ptr<ChildProcess> showWindow(const std::vector<std::string>& arguments) const;

    void startWindowManager();
    /// Ends it without a word, as a crash does.
    void crashWindowManager();
    void killServer();

    /// What a tool prints on this desktop.
    [[nodiscard]] QString ask(const std::vector<std::string>& command) const;
    /// What `xprop` says of a window, or of the root window if it is 0.
    [[nodiscard]] QString property(qulonglong window, const std::string& name) const;
    [[nodiscard]] qulonglong activeWindow() const;
    /// The window's number, from the title; 0 if there is none.
    [[nodiscard]] qulonglong windowTitled(const char* title) const;

private:
    [[nodiscard]] static bool wants(const std::vector<Part>& parts, Part part);
    void startSessionBus();

    QTemporaryDir m_home{QStringLiteral("/tmp/tarvin-XXXXXX")};
    std::unique_ptr<XServer> m_server = std::make_unique<XServer>();
    const std::string m_display = m_server->display();
    ChildProcess::Environment m_environment;
    std::unique_ptr<WindowManager> m_windowManager;
    std::unique_ptr<ChildProcess> m_sessionBus;
};

} // namespace tarvin::endtoend
