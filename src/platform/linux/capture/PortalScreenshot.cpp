#include "platform/linux/capture/PortalScreenshot.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QUrl>

#include <utility>

namespace tarvin::capture {

using namespace services;
using namespace std::chrono_literals;

namespace {

constexpr BusObject portal{
    u"org.freedesktop.portal.Desktop", u"/org/freedesktop/portal/desktop", u"org.freedesktop.portal.Screenshot"};
constexpr BusObject portalProperties{
    u"org.freedesktop.portal.Desktop", u"/org/freedesktop/portal/desktop", u"org.freedesktop.DBus.Properties"};

/// The portal may have to be started for the question.
constexpr auto startTime = 3s;

constexpr uint success = 0;
constexpr uint cancelled = 1;

/// The object that the portal will answer by, which its rules tell beforehand.
QString requestPath(const QDBusConnection& bus, const QString& token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

} // namespace

PortalScreenshot::PortalScreenshot(Buses::Provider sessionBus)
    : m_sessionBus(std::move(sessionBus))
{ }

bool PortalScreenshot::isThere() const
{
    const QDBusMessage answer = askAndWait(m_sessionBus(),
        callOf(portalProperties, u"Get", {portal.interface.toString(), QStringLiteral("version")}), startTime);
    return answer.type() == QDBusMessage::ReplyMessage;
}

void PortalScreenshot::take(Choice choice, Handler handler)
{
    QMetaObject::invokeMethod(
        this,
        [this, choice, handler = std::move(handler)] {
            m_handler = handler;
            QDBusConnection bus = m_sessionBus();
            const QString token =
                QStringLiteral("tarvin%1_%2").arg(QCoreApplication::applicationPid()).arg(++m_requests);
            // Listened for before it is asked, so that a quick answer is heard.
            bus.connect(portal.service.toString(), requestPath(bus, token),
                QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"), this,
                SLOT(respond(uint, QVariantMap)));
            const QVariantMap options{
                {QStringLiteral("handle_token"), token}, {QStringLiteral("interactive"), choice == Choice::ofUser}};
            auto* const watcher =
                new QDBusPendingCallWatcher(bus.asyncCall(callOf(portal, u"Screenshot", {QString(), options})), this);
            connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
                watcher->deleteLater();
                if (watcher->isError())
                    answer(Outcome::failed);
            });
        },
        Qt::QueuedConnection);
}

void PortalScreenshot::respond(uint code, const QVariantMap& results)
{
    const QString file = QUrl(results.value(QStringLiteral("uri")).toString()).toLocalFile();
    if (code == success && !file.isEmpty())
        answer(Outcome::taken, file);
    else
        answer(code == cancelled ? Outcome::cancelledByUser : Outcome::failed);
}

void PortalScreenshot::answer(Outcome outcome, const QString& file)
{
    if (const Handler handler = std::exchange(m_handler, nullptr))
        handler(outcome, file);
}

} // namespace tarvin::capture
