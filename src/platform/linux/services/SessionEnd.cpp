#include "platform/linux/services/SessionEnd.h"

#include "platform/linux/services/LoginManager.h"

#include <array>

namespace tarvin::services {

namespace {

QVariantList nothing(PowerEvent)
{
    return {};
}

/// "Let applications save."
QVariantList allowSave(PowerEvent)
{
    return {true};
}

/// Whether to ask the user (as set), what to do, and when (as set).
QVariantList plasmaNumbers(PowerEvent event)
{
    constexpr int asSet = -1;
    constexpr int reboot = 1;
    constexpr int halt = 2;
    return {asSet, event == PowerEvent::restart ? reboot : halt, asSet};
}

struct ManagerRow
{
    BusObject object;
    QStringView shutDown;
    QStringView restart;
    QVariantList (*arguments)(PowerEvent);
};

/// The session managers of the desktops; a later row of the same name is for versions that lack the first row's call.
constexpr auto managers = std::to_array<ManagerRow>({
    {{u"org.gnome.SessionManager", u"/org/gnome/SessionManager", u"org.gnome.SessionManager"}, u"Shutdown", u"Reboot",
        nothing},
    {{u"org.gnome.SessionManager", u"/org/gnome/SessionManager", u"org.gnome.SessionManager"}, u"RequestShutdown",
        u"RequestReboot", nothing},
    {{u"org.kde.Shutdown", u"/Shutdown", u"org.kde.Shutdown"}, u"logoutAndShutdown", u"logoutAndReboot", nothing},
    {{u"org.kde.ksmserver", u"/KSMServer", u"org.kde.KSMServerInterface"}, u"logout", u"logout", plasmaNumbers},
    {{u"org.xfce.SessionManager", u"/org/xfce/SessionManager", u"org.xfce.Session.Manager"}, u"Shutdown", u"Restart",
        allowSave},
    {{u"org.lxqt.session", u"/LXQtSession", u"org.lxqt.session"}, u"powerOff", u"reboot", nothing},
});

QString nameOf(PowerEvent event)
{
    return event == PowerEvent::restart ? QStringLiteral("Restart") : QStringLiteral("Shut Down");
}

} // namespace

SessionEnd::SessionEnd(Buses buses, AnswerWatch& answers, TellUser tellUser)
    : m_buses(std::move(buses))
    , m_answers(answers)
    , m_tellUser(std::move(tellUser))
{ }

void SessionEnd::send(PowerEvent event)
{
    if (askSessionManager(event) != Outcome::nobodyThere)
        return;
    const QDBusConnection bus = m_buses.system();
    if (!bus.isConnected()) {
        m_tellUser(notAvailable(nameOf(event)));
        return;
    }
    // The argument lets the user be asked for a password where that is needed.
    const QDBusMessage wish = callOf(loginManager, event == PowerEvent::restart ? u"Reboot" : u"PowerOff", {true});
    m_answers.tellOfRefusal(bus.asyncCall(wish, longestAnswerMilliseconds), nameOf(event));
}

SessionEnd::Outcome SessionEnd::askSessionManager(PowerEvent event) const
{
    const QDBusConnection bus = m_buses.session();
    for (const ManagerRow& row : managers) {
        if (!isOnBus(bus, row.object.service))
            continue;
        const QDBusMessage answer = askAndWait(
            bus, callOf(row.object, event == PowerEvent::restart ? row.restart : row.shutDown, row.arguments(event)));
        // A manager that asks the user first may answer only then.
        if (answer.type() == QDBusMessage::ReplyMessage || meansSilence(answer))
            return Outcome::taken;
        if (meansMissing(answer))
            continue;
        m_tellUser(refused(nameOf(event), answer.errorMessage()));
        return Outcome::refused;
    }
    return Outcome::nobodyThere;
}

} // namespace tarvin::services
