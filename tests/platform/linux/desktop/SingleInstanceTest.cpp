#include "platform/linux/desktop/SingleInstance.h"
#include "platform/linux/desktop/InstanceSocket.h"

#include "platform/linux/desktop/support/EnvironmentChange.h"
#include "platform/linux/desktop/support/PrivateDesktop.h"
#include "support/QtPrinters.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>

#include <csignal>
#include <thread>

#include <sys/wait.h>

namespace tarvin::desktop {

using namespace std::chrono_literals;
using endtoend::ChildProcess;
using endtoend::EnvironmentChange;
using endtoend::eventually;
using endtoend::lineFrom;
using endtoend::PrivateDesktop;
using testing::ElementsAre;

namespace {

const QString forwarded = QStringLiteral("outcome 1");
const QString unreachable = QStringLiteral("outcome 2");

class SecondStart : public testing::Test
{
protected:
    explicit SecondStart(std::vector<PrivateDesktop::Part> desktopParts = {PrivateDesktop::Part::windowManager,
                             PrivateDesktop::Part::sessionBus})
        : parts(std::move(desktopParts))
    { }

    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(parts);
        startFirst();
    }

    void startFirst()
    {
        first = desktop->start("tarvin_shell_probe");
        ASSERT_TRUE(lineFrom(*first, "ready"));
    }

    /// A second start, to its end.
    [[nodiscard]] QString outcomeOf(const std::vector<std::string>& arguments = {}, int expectedCode = 0) const
    {
        const auto second = desktop->start("tarvin_shell_probe", arguments);
        const QString outcome = lineFrom(*second, "outcome").value_or(QStringLiteral("none"));
        const std::optional<int> status = second->waitForEnd();
        EXPECT_TRUE(status && WIFEXITED(*status));
        EXPECT_EQ(WEXITSTATUS(status.value_or(0)), expectedCode);
        return outcome;
    }

    const std::vector<PrivateDesktop::Part> parts;
    std::unique_ptr<PrivateDesktop> desktop;
    std::unique_ptr<ChildProcess> first;
};

class SecondStartWithoutBus : public SecondStart
{
protected:
    SecondStartWithoutBus()
        : SecondStart({PrivateDesktop::Part::windowManager})
    { }
};

} // namespace

TEST_F(SecondStart, reachesTheFirstAndEnds)
{
    EXPECT_EQ(outcomeOf(), forwarded);
    EXPECT_TRUE(lineFrom(*first, "reopen without windows"));
    EXPECT_TRUE(lineFrom(*first, "key Tarvin"));
    EXPECT_EQ(outcomeOf(), forwarded);
    EXPECT_TRUE(lineFrom(*first, "reopen with windows"));
}

TEST_F(SecondStart, bringsTheStudioForwardFromTheBackground)
{
    first->writeLine("open");
    ASSERT_TRUE(lineFrom(*first, "key Tarvin"));
    const auto other = desktop->showWindow({"o", "Other", "other"});
    ASSERT_TRUE(eventually([&] { return desktop->activeWindow() == desktop->windowTitled("other"); }));
    desktop->setEnvironment("DESKTOP_STARTUP_ID", "launcher-1_TIME1");
    EXPECT_EQ(outcomeOf(), forwarded);
    EXPECT_TRUE(
        eventually([&] { return desktop->activeWindow() == desktop->windowTitled("MacBook Air Keyboard Studio"); }));
}

TEST_F(SecondStart, handsItsAddressesOver)
{
    EXPECT_EQ(outcomeOf({"tarvin://open-studio", "tarvin://any thing"}), forwarded);
    EXPECT_EQ(lineFrom(*first, "urls"), QStringLiteral("urls tarvin://open-studio tarvin://any thing"));
}

TEST_F(SecondStart, atLoginLeavesTheFirstInPeace)
{
    EXPECT_EQ(outcomeOf({"--startup"}), forwarded);
    EXPECT_EQ(first->readLine(100ms), std::nullopt);
}

TEST_F(SecondStart, withoutTheFirstsBusReachesItOverTheSocket)
{
    desktop->setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    EXPECT_EQ(outcomeOf({"tarvin://x"}), forwarded);
    EXPECT_TRUE(lineFrom(*first, "urls tarvin://x"));
}

TEST_F(SecondStart, withAnotherRunTimeFolderIsHeldBackByTheBus)
{
    QDir().mkpath(desktop->path("elsewhere"));
    desktop->setEnvironment("XDG_RUNTIME_DIR", desktop->path("elsewhere").toStdString());
    EXPECT_EQ(outcomeOf(), forwarded);
    EXPECT_TRUE(lineFrom(*first, "reopen without windows"));
}

TEST_F(SecondStart, ofAnInstanceThatHangsSaysSo)
{
    first->sendSignal(SIGSTOP);
    EXPECT_EQ(outcomeOf({}, 1), unreachable);
    first->sendSignal(SIGCONT);
}

TEST_F(SecondStart, afterTheFirstWasKilledIsTheFirst)
{
    first->sendSignal(SIGKILL);
    ASSERT_TRUE(first->waitForEnd());
    startFirst();
}

TEST_F(SecondStart, launchersFindTheApplicationInterfaceOnTheBus)
{
    QDBusConnection bus = QDBusConnection::connectToBus(
        QString::fromStdString(desktop->environment("DBUS_SESSION_BUS_ADDRESS")), QStringLiteral("launcher"));
    ASSERT_TRUE(bus.isConnected());
    const auto call = [&](const QString& method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("com.velmor.Tarvin"),
            QStringLiteral("/com/velmor/Tarvin"), QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        const QDBusMessage answer = bus.call(message);
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    };
    const QVariantMap platformData{{QStringLiteral("desktop-startup-id"), QStringLiteral("id_TIME1")}};
    call(QStringLiteral("Open"), {QStringList{QStringLiteral("tarvin://bus")}, platformData});
    EXPECT_TRUE(lineFrom(*first, "urls tarvin://bus"));
    call(QStringLiteral("Activate"), {platformData});
    EXPECT_TRUE(lineFrom(*first, "reopen"));
    call(QStringLiteral("ActivateAction"), {QStringLiteral("any"), QVariantList(), platformData});
    EXPECT_TRUE(lineFrom(*first, "reopen"));
    QDBusConnection::disconnectFromBus(QStringLiteral("launcher"));
}

TEST_F(SecondStartWithoutBus, reachesTheFirstOverTheSocket)
{
    EXPECT_EQ(outcomeOf(), forwarded);
    EXPECT_TRUE(lineFrom(*first, "reopen without windows"));
    EXPECT_EQ(outcomeOf({"tarvin://x"}), forwarded);
    EXPECT_TRUE(lineFrom(*first, "urls tarvin://x"));
}

TEST(FirstStart, takesTheAddressesOfItsOwnCommandLine)
{
    if (const auto lack = PrivateDesktop::lack())
        GTEST_SKIP() << *lack;
    const PrivateDesktop desktop({PrivateDesktop::Part::windowManager});
    const auto probe = desktop.start("tarvin_shell_probe", {"tarvin://open-studio"});
    EXPECT_TRUE(lineFrom(*probe, "urls tarvin://open-studio"));
}

TEST(InstanceSocket, takesThePlaceOfWhatACrashLeft)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("socket"));
    QFile left(path);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    QStringList urls;
    {
        const InstanceSocket socket(path, [&](const InstanceRequest& request) { urls += request.urls; });
        ASSERT_TRUE(socket.isListening());
        std::thread caller([&] {
            EXPECT_TRUE(InstanceSocket::send(path, {.urls = {QStringLiteral("tarvin://a")}, .startupId = {}}, 10s));
        });
        EXPECT_TRUE(eventually([&] { return !urls.isEmpty(); }));
        caller.join();
    }
    EXPECT_THAT(urls, ElementsAre(u"tarvin://a"));
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(InstanceSocket::send(path, {}, 10ms)) << "nobody listens any more";
}

TEST(InstanceSocket, aCallerThatSendsNonsenseIsDroppedAndTheNextServed)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("socket"));
    int requests = 0;
    const InstanceSocket socket(path, [&](const InstanceRequest&) { ++requests; });
    std::thread caller([&] {
        EXPECT_FALSE(InstanceSocket::send(path, {.urls = {}, .startupId = QByteArray(200000, 'x')}, 10s));
        EXPECT_TRUE(InstanceSocket::send(path, {}, 10s));
    });
    EXPECT_TRUE(eventually([&] { return requests > 0; }));
    caller.join();
    EXPECT_EQ(requests, 1);
}

TEST(RuntimeDirectory, withoutTheSessionsOwnIsAPrivateOneOfOurs)
{
    const QTemporaryDir directory;
    const EnvironmentChange noFolder("XDG_RUNTIME_DIR", std::nullopt);
    const EnvironmentChange temporaryFolder("TMPDIR", directory.path().toUtf8());
    const QString found = SingleInstance::defaultRuntimeDirectory();
    EXPECT_TRUE(found.startsWith(directory.path()));
    EXPECT_EQ(SingleInstance::defaultRuntimeDirectory(), found) << "the second time too";
    QFile::setPermissions(found, QFile::Permissions(0x7777));
    EXPECT_EQ(SingleInstance::defaultRuntimeDirectory(), QString())
        << "a folder that others may write is no safe place";
}

TEST(SingleInstance, withNeitherLockNorBusNobodyKnows)
{
    SingleInstance instance(QString(), QDBusConnection(QStringLiteral("none")));
    EXPECT_EQ(instance.claim(InstanceRequest(), {}), SingleInstance::Outcome::unguarded);
}

} // namespace tarvin::desktop
