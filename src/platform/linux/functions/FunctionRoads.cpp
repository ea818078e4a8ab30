#include "platform/linux/functions/FunctionRoads.h"

#include <array>

namespace tarvin::functions {

using services::BusObject;
using x11::DesktopFunction;

namespace {

constexpr Sign anywhere{};
constexpr Sign gnome{.service = u"org.gnome.Shell", .program = {}};
constexpr Sign cinnamon{.service = u"org.Cinnamon", .program = {}};
constexpr Sign plasma{.service = u"org.kde.plasmashell", .program = {}};
constexpr Sign plasmaWindows{.service = u"org.kde.KWin", .program = {}};
constexpr Sign xfceNotices{.service = u"org.xfce.Notifyd", .program = {}};

constexpr Sign running(QStringView program)
{
    return {.service = {}, .program = program};
}

constexpr BusObject gnomeShell{u"org.gnome.Shell", u"/org/gnome/Shell", u"org.gnome.Shell"};
constexpr BusObject cinnamonShell{u"org.Cinnamon", u"/org/Cinnamon", u"org.Cinnamon"};
constexpr BusObject windowShortcuts{u"org.kde.kglobalaccel", u"/component/kwin", u"org.kde.kglobalaccel.Component"};
constexpr BusObject shellShortcuts{
    u"org.kde.kglobalaccel", u"/component/plasmashell", u"org.kde.kglobalaccel.Component"};
constexpr BusObject runner{u"org.kde.krunner", u"/App", u"org.kde.krunner.App"};
constexpr BusObject dunst{
    u"org.freedesktop.Notifications", u"/org/freedesktop/Notifications", u"org.dunstproject.cmd0"};

constexpr QStringView press = u"invokeShortcut";

constexpr auto roads = std::to_array<FunctionRoad>({
    {DesktopFunction::showAllWindows, gnome, FlipProperty{gnomeShell, u"OverviewActive"}},
    {DesktopFunction::showAllWindows, cinnamon, FlipProperty{cinnamonShell, u"OverviewActive"}},
    {DesktopFunction::showAllWindows, plasmaWindows, AskBus{windowShortcuts, press, u"Overview"}},
    {DesktopFunction::showAllWindows, anywhere, RunProgram{u"xfdashboard", {}}},
    {DesktopFunction::showAllWindows, anywhere, RunProgram{u"skippy-xd", {}}},

    {DesktopFunction::showApplicationWindows, plasmaWindows, AskBus{windowShortcuts, press, u"ExposeClass"}},

    {DesktopFunction::previousDesktop, anywhere, ManagerWish::previousDesktop},
    {DesktopFunction::nextDesktop, anywhere, ManagerWish::nextDesktop},
    {DesktopFunction::showDesktop, anywhere, ManagerWish::showDesktop},
    {DesktopFunction::hideOtherApplications, anywhere, ManagerWish::hideOtherApplications},

    // What is typed into the overview searches.
    {DesktopFunction::search, gnome, FlipProperty{gnomeShell, u"OverviewActive"}},
    {DesktopFunction::search, plasma, AskBus{runner, u"display", {}}},
    {DesktopFunction::search, running(u"mate-panel"), RunProgram{u"mate-panel", u"--run-dialog"}},
    {DesktopFunction::search, running(u"lxqt-session"), RunProgram{u"lxqt-runner", {}}},
    {DesktopFunction::search, running(u"xfce4-session"), RunProgram{u"xfce4-appfinder", {}}},
    {DesktopFunction::search, anywhere, RunProgram{u"ulauncher-toggle", {}}},
    {DesktopFunction::search, anywhere, RunProgram{u"rofi", u"-show drun"}},
    {DesktopFunction::search, anywhere, RunProgram{u"synapse", {}}},
    {DesktopFunction::search, anywhere, RunProgram{u"xfce4-appfinder", {}}},
    {DesktopFunction::search, anywhere, RunProgram{u"gmrun", {}}},
    {DesktopFunction::search, anywhere, RunProgram{u"dmenu_run", {}}},

    {DesktopFunction::lockScreen, anywhere, OwnMeans::lockScreen},
    {DesktopFunction::forceQuitDialog, anywhere, OwnMeans::forceQuitDialog},

    {DesktopFunction::doNotDisturb, gnome, FlipSetting{u"org.gnome.desktop.notifications", u"show-banners"}},
    {DesktopFunction::doNotDisturb, cinnamon,
        FlipSetting{u"org.cinnamon.desktop.notifications", u"display-notifications"}},
    {DesktopFunction::doNotDisturb, plasma, AskBus{shellShortcuts, press, u"toggle do not disturb"}},
    {DesktopFunction::doNotDisturb, xfceNotices,
        RunProgram{u"xfconf-query", u"-c xfce4-notifyd -p /do-not-disturb -T"}},
    {DesktopFunction::doNotDisturb, running(u"mate-notification-daemon"),
        FlipSetting{u"org.mate.NotificationDaemon", u"do-not-disturb"}},
    {DesktopFunction::doNotDisturb, running(u"dunst"), FlipProperty{dunst, u"paused"}},
});

} // namespace

std::span<const FunctionRoad> functionRoads() noexcept
{
    return roads;
}

} // namespace tarvin::functions
