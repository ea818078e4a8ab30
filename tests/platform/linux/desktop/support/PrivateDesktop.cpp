#include "platform/linux/desktop/support/PrivateDesktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace tarvin::endtoend {

void letPass(std::chrono::milliseconds time)
{
    static_cast<void>(eventually([] { return false; }, time));
}

std::optional<QString> lineFrom(ChildProcess& child, const char* beginning)
{
    while (const std::optional<std::string> line = child.readLine()) {
        if (line->starts_with(beginning))
            return QString::fromStdString(*line);
    }
    return std::nullopt;
}

QStringList remainingLinesFrom(ChildProcess& child)
{
    QStringList lines;
    while (const std::optional<std::string> line = child.readLine())
        lines += QString::fromStdString(*line);
    return lines;
}

std::optional<std::string> PrivateDesktop::lack()
{
    if (const auto lack = XServer::lack(XServer::Kind::virtualFramebuffer))
        return lack;
    if (const auto lack = WindowManager::lack())
        return lack;
    for (const char* program : {"dbus-daemon", "xprop", "xwininfo"}) {
        if (!ChildProcess::isInstalled(program))
            return std::string(program) + " is not installed";
    }
    return std::nullopt;
}

PrivateDesktop::PrivateDesktop(const std::vector<Part>& parts)
{
    setEnvironment("DISPLAY", m_display);
    setEnvironment("LC_ALL", "C.UTF-8");
    setEnvironment("HOME", m_home.path().toStdString());
    setEnvironment("TMPDIR", m_home.path().toStdString());
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    constexpr std::array folders{std::pair("XDG_DATA_HOME", "share"), std::pair("XDG_CONFIG_HOME", "config"),
        std::pair("XDG_CACHE_HOME", "cache"), std::pair("XDG_RUNTIME_DIR", "runtime")};
    for (const auto& [variable, folder] : folders) {
        QDir().mkpath(path(folder));
        QFile::setPermissions(path(folder), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        setEnvironment(variable, path(folder).toStdString());
    }
    if (wants(parts, Part::sessionBus))
        startSessionBus();
    if (wants(parts, Part::windowManager))
        startWindowManager();
}

void PrivateDesktop::putFile(const char* name, const QByteArray& content, QFile::Permissions permissions) const
{
    QDir().mkpath(path(name).section(u'/', 0, -2));
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("a file could not be written");
    file.close();
    if (permissions != QFile::Permissions())
        file.setPermissions(permissions);
}

void PrivateDesktop::setEnvironment(const std::string& variable, const std::string& value)
{
    std::erase_if(m_environment, [&](const auto& addition) { return addition.first == variable; });
    m_environment.emplace_back(variable, value);
}

std::string PrivateDesktop::environment(const std::string& variable) const
{
    const auto found = std::find_if(
        m_environment.begin(), m_environment.end(), [&](const auto& addition) { return addition.first == variable; });
    return found == m_environment.end() ? std::string() : found->second;
}

std::unique_ptr<ChildProcess> PrivateDesktop::start(
    const std::string& program, const std::vector<std::string>& arguments) const
{
    return run(QCoreApplication::applicationDirPath().toStdString() + '/' + program, arguments);
}

std::unique_ptr<ChildProcess> PrivateDesktop::run(
    const std::string& program, const std::vector<std::string>& arguments) const
{
    std::vector<std::string> command{program};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return std::make_unique<ChildProcess>(command, m_environment, -1, ChildProcess::Input::lines);
}

std::unique_ptr<ChildProcess> PrivateDesktop::showWindow(const std::vector<std::string>& arguments) const
{
    auto client = run(WINDOW_CLIENT, arguments);
    if (!lineFrom(*client, "shown"))
        throw std::runtime_error("the window was never shown");
    return client;
}

void PrivateDesktop::startWindowManager()
{
    m_windowManager.reset();
    m_windowManager = std::make_unique<WindowManager>(m_display);
}

void PrivateDesktop::crashWindowManager()
{
    m_windowManager->crash();
}

void PrivateDesktop::killServer()
{
    m_windowManager.reset();
    m_server.reset();
}

QString PrivateDesktop::ask(const std::vector<std::string>& command) const
{
    ChildProcess tool(command, m_environment);
    return remainingLinesFrom(tool).join(u'\n');
}

QString PrivateDesktop::property(qulonglong window, const std::string& name) const
{
    return window == 0 ? ask({"xprop", "-root", name}) : ask({"xprop", "-id", std::to_string(window), name});
}

qulonglong PrivateDesktop::activeWindow() const
{
    static const QRegularExpression number(QStringLiteral("window id # 0x([0-9a-f]+)"));
    return number.match(property(0, "_NET_ACTIVE_WINDOW")).captured(1).toULongLong(nullptr, 16);
}

qulonglong PrivateDesktop::windowTitled(const char* title) const
{
    static const QRegularExpression number(QStringLiteral("0x([0-9a-f]+)"));
    const QString list = property(0, "_NET_CLIENT_LIST");
    for (auto match = number.globalMatch(list); match.hasNext();) {
        const qulonglong window = match.next().captured(1).toULongLong(nullptr, 16);
        if (property(window, "_NET_WM_NAME").contains(QString::fromUtf8(title)))
            return window;
    }
    return 0;
}

bool PrivateDesktop::wants(const std::vector<Part>& parts, Part part)
{
    return std::find(parts.begin(), parts.end(), part) != parts.end();
}

void PrivateDesktop::startSessionBus()
{
    m_sessionBus = std::make_unique<ChildProcess>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"},
        m_environment);
    const std::optional<std::string> address = m_sessionBus->readLine();
    if (!address)
        throw std::runtime_error("the session bus did not start");
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", *address);
}

} // namespace tarvin::endtoend
