#include "platform/linux/services/ScreenSaver.h"

#include "platform/linux/services/LoginManager.h"
#include "platform/linux/services/Programs.h"

#include <array>

namespace tarvin::services {

using namespace std::chrono_literals;

namespace {

/// A key is let go of within this time by most hands.
constexpr auto keyRelease = 700ms;

struct SaverRow
{
    BusObject object;
    bool lockTakesText; ///< a message for who comes to the locked screen
};

constexpr auto savers = std::to_array<SaverRow>({
    {{u"org.gnome.ScreenSaver", u"/org/gnome/ScreenSaver", u"org.gnome.ScreenSaver"}, false},
    {{u"org.cinnamon.ScreenSaver", u"/org/cinnamon/ScreenSaver", u"org.cinnamon.ScreenSaver"}, true},
    {{u"org.mate.ScreenSaver", u"/org/mate/ScreenSaver", u"org.mate.ScreenSaver"}, false},
    {{u"org.xfce.ScreenSaver", u"/org/xfce/ScreenSaver", u"org.xfce.ScreenSaver"}, false},
    {{u"org.freedesktop.ScreenSaver", u"/org/freedesktop/ScreenSaver", u"org.freedesktop.ScreenSaver"}, false},
    {{u"org.freedesktop.ScreenSaver", u"/ScreenSaver", u"org.freedesktop.ScreenSaver"}, false},
});

/// Lockers beside the bus. The first rows speak to a program that runs already.
struct LockerRow
{
    QStringView runs; ///< the program that must run; empty for none
    QStringView program;
    QStringView argument;
};

constexpr auto lockers = std::to_array<LockerRow>({
    {u"xscreensaver", u"xscreensaver-command", u"-lock"},
    {u"light-locker", u"light-locker-command", u"-l"},
    {u"xfce4-session", u"xflock4", {}},
});
constexpr auto independentLockers = std::to_array<LockerRow>({
    {{}, u"xsecurelock", {}},
    {{}, u"i3lock", {}},
    {{}, u"slock", {}},
    {{}, u"xtrlock", {}},
});

/// Programs that lock when the login manager says so; without one of them its word is heard by nobody.
constexpr auto listeners = std::to_array<QStringView>({u"xss-lock", u"xautolock", u"swayidle", u"light-locker"});

const QString lockName = QStringLiteral("Lock Screen");
const QString blankName = QStringLiteral("Sleep Display");

template <std::size_t size> bool startOneOf(const std::array<LockerRow, size>& rows)
{
    for (const LockerRow& row : rows) {
        if (!row.runs.isEmpty() && !isProgramRunning(row.runs))
            continue;
        const QStringList arguments = row.argument.isEmpty() ? QStringList() : QStringList(row.argument.toString());
        if (startProgram(row.program.toString(), arguments))
            return true;
    }
    return false;
}

} // namespace

ScreenSaver::ScreenSaver(
    Scheduler& scheduler, Buses buses, AnswerWatch& answers, TellUser tellUser, SwitchDisplaysOff switchDisplaysOff)
    : m_scheduler(scheduler)
    , m_buses(std::move(buses))
    , m_answers(answers)
    , m_tellUser(std::move(tellUser))
    , m_switchDisplaysOff(std::move(switchDisplaysOff))
{ }

void ScreenSaver::lock()
{
    const QDBusConnection bus = m_buses.session();
    for (const SaverRow& row : savers) {
        if (!isOnBus(bus, row.object.service))
            continue;
        const QVariantList arguments = row.lockTakesText ? QVariantList{QString()} : QVariantList();
        const QDBusMessage answer = askAndWait(bus, callOf(row.object, u"Lock", arguments));
        // Some savers answer only when the screen is open again.
        if (answer.type() == QDBusMessage::ReplyMessage || meansSilence(answer))
            return;
        if (meansMissing(answer))
            continue;
        m_tellUser(refused(lockName, answer.errorMessage()));
        return;
    }
    if (startOneOf(lockers))
        return;
    const bool isHeard = std::any_of(listeners.begin(), listeners.end(), isProgramRunning);
    if (!isHeard && startOneOf(independentLockers))
        return;
    const QDBusConnection system = m_buses.system();
    if (!system.isConnected()) {
        m_tellUser(notAvailable(lockName));
        return;
    }
    m_answers.tellOfRefusal(system.asyncCall(callOf(loginSession, u"Lock"), longestAnswerMilliseconds), lockName);
    if (!isHeard)
        m_tellUser(notAvailable(lockName));
}

void ScreenSaver::blankDisplays()
{
    m_scheduler.postAfter(
        keyRelease, [this] { m_scheduler.runInBackground(BackgroundQueue::userInitiated, [this] { blankNow(); }); });
}

void ScreenSaver::blankNow()
{
    if (m_switchDisplaysOff && m_switchDisplaysOff())
        return;
    const QDBusConnection bus = m_buses.session();
    for (const SaverRow& row : savers) {
        if (!isOnBus(bus, row.object.service))
            continue;
        const QDBusMessage answer = askAndWait(bus, callOf(row.object, u"SetActive", {true}));
        if (answer.type() == QDBusMessage::ReplyMessage || meansSilence(answer))
            return;
        if (meansMissing(answer))
            continue;
        m_tellUser(refused(blankName, answer.errorMessage()));
        return;
    }
    m_tellUser(notAvailable(blankName));
}

} // namespace tarvin::services
