#include "platform/linux/desktop/WindowFacts.h"

#include "platform/linux/desktop/ClientProcess.h"
#include "platform/linux/desktop/XProperties.h"

#include <QSysInfo>

#include <algorithm>

namespace tarvin::desktop {

namespace {

struct KindRow
{
    XAtom type;
    int layer; ///< as a window list elsewhere numbers them: normal 0, floating 3, dock 20, pop-ups above
    bool isInTaskbar;
};

constexpr auto kindRows = std::to_array<KindRow>({
    {XAtom::netWmWindowTypeNormal, 0, true},
    {XAtom::netWmWindowTypeDialog, 0, true},
    {XAtom::netWmWindowTypeUtility, 3, false},
    {XAtom::netWmWindowTypeToolbar, 3, false},
    {XAtom::netWmWindowTypeMenu, 3, false},
    {XAtom::netWmWindowTypeSplash, 3, false},
    {XAtom::netWmWindowTypeDock, 20, false},
    {XAtom::netWmWindowTypeNotification, 25, false},
    {XAtom::netWmWindowTypeDesktop, -1, false},
});
constexpr int floatingLayer = 3;

/// `_NET_WM_DESKTOP` of a window that is on all of them.
constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;

/// The requests about one window, all sent before the first answer is read.
struct Questions
{
    Questions(const XConnection& connection, xcb_window_t window)
        : geometry(xcb_get_geometry(connection.handle(), window))
        , attributes(xcb_get_window_attributes(connection.handle(), window))
        , windowClass(askProperty(connection, window, XCB_ATOM_WM_CLASS))
        , machine(askProperty(connection, window, XCB_ATOM_WM_CLIENT_MACHINE))
        , process(askProperty(connection, window, connection.atom(XAtom::netWmPid)))
        , states(askProperty(connection, window, connection.atom(XAtom::netWmState)))
        , desktop(askProperty(connection, window, connection.atom(XAtom::netWmDesktop)))
        , types(askProperty(connection, window, connection.atom(XAtom::netWmWindowType)))
        , kdeDesktopFile(askProperty(connection, window, connection.atom(XAtom::kdeDesktopFile)))
        , gtkApplication(askProperty(connection, window, connection.atom(XAtom::gtkApplicationId)))
    { }

    xcb_get_geometry_cookie_t geometry;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_property_cookie_t windowClass;
    xcb_get_property_cookie_t machine;
    xcb_get_property_cookie_t process;
    xcb_get_property_cookie_t states;
    xcb_get_property_cookie_t desktop;
    xcb_get_property_cookie_t types;
    xcb_get_property_cookie_t kdeDesktopFile;
    xcb_get_property_cookie_t gtkApplication;
};

void readKind(WindowFacts& facts, const XConnection& connection, const Questions& questions)
{
    const std::vector<std::uint32_t> types = numbersOf(connection, questions.types);
    bool isInTaskbar = true;
    // The first type that we know counts.
    for (const std::uint32_t type : types) {
        const auto row = std::find_if(kindRows.begin(), kindRows.end(),
            [&](const KindRow& candidate) { return connection.atom(candidate.type) == type; });
        if (row == kindRows.end())
            continue;
        facts.layer = row->layer;
        facts.isDesktop = row->type == XAtom::netWmWindowTypeDesktop;
        isInTaskbar = row->isInTaskbar;
        break;
    }
    const std::vector<std::uint32_t> states = numbersOf(connection, questions.states);
    const auto hasState = [&](XAtom state) {
        return std::find(states.begin(), states.end(), connection.atom(state)) != states.end();
    };
    if (facts.layer == 0 && hasState(XAtom::netWmStateAbove))
        facts.layer = floatingLayer;
    facts.isMinimized = hasState(XAtom::netWmStateHidden);
    facts.isSkippedByTaskbar = !isInTaskbar || hasState(XAtom::netWmStateSkipTaskbar);
}

void readIdentity(WindowFacts& facts, const XConnection& connection, const Questions& questions)
{
    const QByteArray windowClass = textOf(connection, questions.windowClass);
    const QList<QByteArray> parts = windowClass.split('\0');
    facts.instanceName = QString::fromUtf8(parts.value(0));
    facts.className = QString::fromUtf8(parts.value(1));

    // A process of another machine that shows its window here has a number that means nothing on this one.
    const QByteArray machine = textOf(connection, questions.machine);
    const std::vector<std::uint32_t> process = numbersOf(connection, questions.process);
    if (!process.empty() && (machine.isEmpty() || machine == QSysInfo::machineHostName().toLocal8Bit()))
        facts.process = static_cast<ProcessIdentifier>(process.front());
    else if (process.empty())
        facts.process = localProcessOf(connection, facts.window);

    const QByteArray kdeDesktopFile = textOf(connection, questions.kdeDesktopFile);
    const QByteArray gtkApplication = textOf(connection, questions.gtkApplication);
    facts.desktopFile = QString::fromUtf8(kdeDesktopFile.isEmpty() ? gtkApplication : kdeDesktopFile);
}

} // namespace

std::vector<WindowFacts> readWindows(const XConnection& connection, const std::vector<xcb_window_t>& windows)
{
    if (!connection.isConnected())
        return {};
    std::vector<Questions> questions;
    questions.reserve(windows.size());
    for (const xcb_window_t window : windows)
        questions.emplace_back(connection, window);

    const std::vector<std::uint32_t> currentDesktop = rootNumbers(connection, XAtom::netCurrentDesktop);

    std::vector<WindowFacts> found;
    found.reserve(windows.size());
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const XPointer<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection.handle(), questions[i].geometry, nullptr));
        const XPointer<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection.handle(), questions[i].attributes, nullptr));
        WindowFacts facts;
        facts.window = windows[i];
        readKind(facts, connection, questions[i]);
        readIdentity(facts, connection, questions[i]);
        const std::vector<std::uint32_t> desktop = numbersOf(connection, questions[i].desktop);
        if (!geometry || !attributes)
            continue;
        // Managers that keep live pictures leave the windows of other desktops mapped.
        const bool isOnShownDesktop = desktop.empty() || currentDesktop.empty() || desktop.front() == everyDesktop
            || desktop.front() == currentDesktop.front();
        facts.isOnScreen = !facts.isMinimized && isOnShownDesktop && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
        facts.size = {static_cast<double>(geometry->width), static_cast<double>(geometry->height)};
        found.push_back(std::move(facts));
    }
    return found;
}

std::vector<xcb_window_t> windowList(const XConnection& connection, XAtom property)
{
    return connection.isConnected() ? rootNumbers(connection, property) : std::vector<xcb_window_t>();
}

std::optional<xcb_window_t> windowManagerWindow(const XConnection& connection)
{
    if (!connection.isConnected())
        return std::nullopt;
    const std::vector<std::uint32_t> check = rootNumbers(connection, XAtom::netSupportingWmCheck);
    if (check.empty())
        return std::nullopt;
    // The window names itself; a left-over identifier that another client was given by now does not.
    const std::vector<std::uint32_t> self =
        numbersOf(connection, askProperty(connection, check.front(), connection.atom(XAtom::netSupportingWmCheck)));
    return !self.empty() && self.front() == check.front() ? std::optional(check.front()) : std::nullopt;
}

std::optional<xcb_window_t> activeWindow(const XConnection& connection)
{
    if (!windowManagerWindow(connection))
        return std::nullopt;
    const std::vector<std::uint32_t> active = rootNumbers(connection, XAtom::netActiveWindow);
    if (active.empty())
        return std::nullopt;
    // Some managers go on naming the last window after it was closed; it is no longer among their clients then.
    const std::vector<xcb_window_t> clients = windowList(connection, XAtom::netClientList);
    const bool isManaged = std::find(clients.begin(), clients.end(), active.front()) != clients.end();
    return isManaged ? std::optional(active.front()) : std::nullopt;
}

} // namespace tarvin::desktop
