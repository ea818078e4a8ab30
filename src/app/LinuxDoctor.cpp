#include "app/MachineDoctor.h"

#include "platform/linux/desktop/LinuxProcessInfo.h"
#include "platform/linux/evdev/TapClient.h"
#include "platform/linux/x11/XCapabilities.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>

#include <unistd.h>

namespace tarvin {

namespace {

/// The daemon that takes keys from the kernel.
const QString daemonName = QStringLiteral("tarvin-tapd");

/// Programs that read keyboards as a matter of course, and take no keys from others.
constexpr std::array<QStringView, 10> harmlessReaders = {u"Xorg", u"Xwayland", u"systemd-logind", u"systemd",
    u"gnome-shell", u"kwin_wayland", u"sway", u"acpid", u"tarvin-tapd", u"tapd-guard"};

bool isDaemonInstalled()
{
    return std::ranges::any_of(std::array{"/usr/libexec/tarvin/", "/usr/local/libexec/tarvin/", "/usr/bin/"},
        [](const char* folder) { return QFileInfo::exists(QString::fromLatin1(folder) + daemonName); });
}

/// Who has a device of an input open, as far as this user may see: other users' processes hide theirs.
QStringList keyboardHolders()
{
    QStringList holders;
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString& process : processes) {
        const QString folder = QStringLiteral("/proc/") + process;
        QFile nameFile(folder + QStringLiteral("/comm"));
        if (!nameFile.open(QIODevice::ReadOnly))
            continue;
        const QString name = QString::fromUtf8(nameFile.readAll()).trimmed();
        if (std::ranges::find(harmlessReaders, QStringView(name)) != harmlessReaders.end())
            continue;
        const QFileInfoList descriptors =
            QDir(folder + QStringLiteral("/fd")).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
        const bool readsInput = std::ranges::any_of(descriptors,
            [](const QFileInfo& descriptor) { return descriptor.symLinkTarget().startsWith(u"/dev/input/event"); });
        if (readsInput)
            holders += QStringLiteral("%1 (process %2)").arg(name, process);
    }
    return holders;
}

bool hasSoundServer()
{
    const QString given = qEnvironmentVariable("PULSE_SERVER");
    if (given.startsWith(u"unix:"))
        return QFileInfo::exists(given.mid(5));
    return !given.isEmpty()
        || QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/pulse/native"));
}

bool hasStatusNotifier()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected()
        && bus.interface()->isServiceRegistered(QStringLiteral("org.kde.StatusNotifierWatcher")).value();
}

} // namespace

Diagnosis diagnoseThisMachine(const QStringList& arguments)
{
    DoctorFacts facts = factsOfTheProgram(desktop::LinuxProcessInfo(arguments));
    facts.sessionType = qEnvironmentVariable("XDG_SESSION_TYPE");
    facts.desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    facts.display = qEnvironmentVariable("DISPLAY");
    if (const auto server = facts.display.isEmpty() ? std::nullopt : x11::askXServer()) {
        facts.xServerAnswers = true;
        facts.xInputVersion = server->xInputVersion;
        facts.hasTestExtension = server->hasTestExtension;
        facts.isInsideWayland = server->isInsideWayland;
        facts.isKeyboardTaken = server->isKeyboardTaken;
        facts.hasXTray = server->hasTray;
    }
    facts.isDaemonReachable = access(evdev::TapClient::defaultSocketPath().c_str(), R_OK | W_OK) == 0;
    facts.isDaemonInstalled = facts.isDaemonReachable || isDaemonInstalled();
    facts.keyboardHolders = keyboardHolders();
    facts.hasSoundServer = hasSoundServer();
    facts.hasStatusNotifier = hasStatusNotifier();
    return diagnose(facts);
}

} // namespace tarvin
