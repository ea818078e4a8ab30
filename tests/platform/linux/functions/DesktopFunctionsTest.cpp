#include "platform/linux/functions/DesktopFunctions.h"

#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/posix/StdoutConsole.h"

#include "platform/linux/desktop/support/EnvironmentChange.h"
#include "platform/linux/desktop/support/PrivateDesktop.h"
#include "platform/linux/services/support/MockService.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QStandardPaths>

#include <QCoreApplication>

#include <mutex>
#include <set>

namespace tarvin::functions {

using namespace std::chrono_literals;
using endtoend::EnvironmentChange;
using endtoend::eventually;
using endtoend::MockService;
using endtoend::PrivateBus;
using endtoend::PrivateDesktop;
using x11::DesktopFunction;

namespace {

/// A desktop with a plain window manager; whatever else it has, a test adds.
class FunctionsOnX : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        if (const auto lack = MockService::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(std::vector{PrivateDesktop::Part::windowManager});
        QDir().mkpath(desktop->path("bin"));
        bus = std::make_unique<PrivateBus>();
        connection = std::make_unique<desktop::XConnection>(scheduler, console, desktop->display());
        functions = std::make_unique<DesktopFunctions>(
            scheduler, *connection, [this] { return bus->connection(); },
            [this](const QString& text) {
                const std::lock_guard lock(mutex);
                m_told += text;
            },
            DesktopFunctions::Means{.lockScreen = [this] { ++locks; }, .showForceQuitDialog = [this] { ++dialogs; }});
        for (const char* tool : {"xprop", "sh", "env"})
            QFile::link(QStandardPaths::findExecutable(QString::fromLatin1(tool)),
                desktop->path("bin/") + QString::fromLatin1(tool));
        // No launcher of this machine comes up.
        searchPath = std::make_unique<EnvironmentChange>("PATH", desktop->path("bin").toUtf8());
    }

    void TearDown() override
    {
        EXPECT_TRUE(scheduler.shutDown(endtoend::patience));
        // What has been posted runs while those it is meant for are still there.
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QStringList told()
    {
        const std::lock_guard lock(mutex);
        return m_told;
    }

    void expectMissing(DesktopFunction function, const char* name)
    {
        functions->perform(function);
        EXPECT_TRUE(eventually([&] { return !told().isEmpty(); }));
        EXPECT_EQ(told(), QStringList(QStringLiteral("Not available on this desktop: ") + QString::fromUtf8(name)));
    }

    /// A program that writes its arguments to a file.
    void putProgram(const char* name) const
    {
        desktop->putFile((std::string("bin/") + name).c_str(),
            "#!/bin/sh\necho \"${0##*/} $*\" >> " + desktop->path("ran").toUtf8() + "\n",
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QString ran() const
    {
        QFile file(desktop->path("ran"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    [[nodiscard]] int currentDesktop() const { return numberOf("_NET_CURRENT_DESKTOP"); }

    [[nodiscard]] int numberOf(const char* property) const
    {
        return desktop->property(0, property).section(u'=', 1).trimmed().toInt();
    }

    std::unique_ptr<PrivateDesktop> desktop;
    std::unique_ptr<PrivateBus> bus;
    posix::StdoutConsole console;
    desktop::QtScheduler scheduler;
    std::unique_ptr<desktop::XConnection> connection;
    std::unique_ptr<DesktopFunctions> functions;
    std::unique_ptr<EnvironmentChange> searchPath;
    std::atomic<int> locks = 0;
    std::atomic<int> dialogs = 0;
    std::mutex mutex;

private:
    QStringList m_told;
};

} // namespace

TEST(FunctionRoads, everyFunctionButDictationHasARoad)
{
    std::set<DesktopFunction> withRoad;
    for (const FunctionRoad& row : functionRoads())
        withRoad.insert(row.function);
    EXPECT_EQ(withRoad.size(), static_cast<std::size_t>(DesktopFunction::doNotDisturb));
    EXPECT_FALSE(withRoad.contains(DesktopFunction::dictation));
}

TEST(FunctionRoads, whatTheWindowManagerOrTheProgramDoesHasNoOtherRoad)
{
    for (const FunctionRoad& row : functionRoads()) {
        if (!std::holds_alternative<ManagerWish>(row.road) && !std::holds_alternative<OwnMeans>(row.road))
            continue;
        const auto roads = functionRoads();
        EXPECT_EQ(std::count_if(roads.begin(), roads.end(),
                      [&](const FunctionRoad& other) { return other.function == row.function; }),
            1);
    }
}

TEST_F(FunctionsOnX, theDesktopIsShownAndTheWindowsComeBack)
{
    functions->perform(DesktopFunction::showDesktop);
    EXPECT_TRUE(eventually([&] { return numberOf("_NET_SHOWING_DESKTOP") == 1; }));
    functions->perform(DesktopFunction::showDesktop);
    EXPECT_TRUE(eventually([&] { return numberOf("_NET_SHOWING_DESKTOP") == 0; }));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(FunctionsOnX, theDesktopsAreSwitchedAndHaveEnds)
{
    ASSERT_GE(numberOf("_NET_NUMBER_OF_DESKTOPS"), 2);
    functions->perform(DesktopFunction::previousDesktop);
    functions->perform(DesktopFunction::nextDesktop);
    EXPECT_TRUE(eventually([&] { return currentDesktop() == 1; }));
    functions->perform(DesktopFunction::previousDesktop);
    EXPECT_TRUE(eventually([&] { return currentDesktop() == 0; }));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(FunctionsOnX, theWindowsOfOtherApplicationsAreMinimised)
{
    const auto back = desktop->showWindow({"back", "Back", "back"});
    const auto front = desktop->showWindow({"front", "Front", "front"});
    const qulonglong backWindow = desktop->windowTitled("back");
    const qulonglong frontWindow = desktop->windowTitled("front");
    ASSERT_TRUE(eventually([&] { return desktop->activeWindow() == frontWindow; }));
    functions->perform(DesktopFunction::hideOtherApplications);
    EXPECT_TRUE(eventually([&] { return desktop->property(backWindow, "_NET_WM_STATE").contains(u"HIDDEN"); }));
    EXPECT_FALSE(desktop->property(frontWindow, "_NET_WM_STATE").contains(u"HIDDEN"));
}

TEST_F(FunctionsOnX, gnomesOverviewIsOpenedAndClosed)
{
    MockService gnome(*bus, "org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell");
    gnome.addProperty("OverviewActive", false);
    functions->perform(DesktopFunction::showAllWindows);
    EXPECT_TRUE(eventually([&] { return gnome.property("OverviewActive").toBool(); }));
    functions->perform(DesktopFunction::showAllWindows);
    EXPECT_TRUE(eventually([&] { return !gnome.property("OverviewActive").toBool(); }));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(FunctionsOnX, plasmaIsAskedByItsOwnShortcuts)
{
    const MockService manager(*bus, "org.kde.KWin", "/KWin", "org.kde.KWin");
    MockService shortcuts(*bus, "org.kde.kglobalaccel", "/component/kwin", "org.kde.kglobalaccel.Component");
    shortcuts.addMethod("invokeShortcut", "s");
    functions->perform(DesktopFunction::showAllWindows);
    ASSERT_TRUE(shortcuts.isCalled(1));
    functions->perform(DesktopFunction::showApplicationWindows);
    ASSERT_TRUE(shortcuts.isCalled(2));
    EXPECT_EQ(shortcuts.calls(),
        QStringList({QStringLiteral("invokeShortcut Overview"), QStringLiteral("invokeShortcut ExposeClass")}));
}

TEST_F(FunctionsOnX, plasmasSearchComesUp)
{
    const MockService shell(*bus, "org.kde.plasmashell", "/PlasmaShell", "org.kde.PlasmaShell");
    MockService runner(*bus, "org.kde.krunner", "/App", "org.kde.krunner.App");
    runner.addMethod("display", "");
    functions->perform(DesktopFunction::search);
    ASSERT_TRUE(runner.isCalled(1));
    EXPECT_EQ(runner.calls(), QStringList(QStringLiteral("display")));
}

TEST_F(FunctionsOnX, onAPlainDesktopAnInstalledLauncherSearches)
{
    putProgram("rofi");
    functions->perform(DesktopFunction::search);
    EXPECT_TRUE(eventually([&] { return ran() == QStringLiteral("rofi -show drun\n"); }));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(FunctionsOnX, xfcesNoticesAreSilenced)
{
    putProgram("xfconf-query");
    const MockService notices(
        *bus, "org.xfce.Notifyd", "/org/freedesktop/Notifications", "org.freedesktop.Notifications");
    functions->perform(DesktopFunction::doNotDisturb);
    EXPECT_TRUE(
        eventually([&] { return ran() == QStringLiteral("xfconf-query -c xfce4-notifyd -p /do-not-disturb -T\n"); }));
}

TEST_F(FunctionsOnX, gnomesNoticesAreSilencedByItsSetting)
{
    desktop->putFile("bin/gsettings",
        "#!/bin/sh\necho \"${0##*/} $*\" >> " + desktop->path("ran").toUtf8()
            + "\nif [ $1 = get ]; then echo true; fi\n",
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const MockService gnome(*bus, "org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell");
    functions->perform(DesktopFunction::doNotDisturb);
    EXPECT_TRUE(eventually([&] {
        return ran()
            == QStringLiteral("gsettings get org.gnome.desktop.notifications show-banners\n"
                              "gsettings set org.gnome.desktop.notifications show-banners false\n");
    }));
}

TEST_F(FunctionsOnX, whatTheDesktopDoesNotHaveIsNamed)
{
    expectMissing(DesktopFunction::dictation, "dictation");
}

TEST_F(FunctionsOnX, aPlainDesktopHasNoOverview)
{
    expectMissing(DesktopFunction::showAllWindows, "show all windows");
}

TEST_F(FunctionsOnX, lockAndTheListOfApplicationsAreTheProgramsOwn)
{
    functions->perform(DesktopFunction::lockScreen);
    functions->perform(DesktopFunction::forceQuitDialog);
    EXPECT_TRUE(eventually([&] { return locks == 1 && dialogs == 1; }));
    EXPECT_EQ(told(), QStringList());
}

} // namespace tarvin::functions
