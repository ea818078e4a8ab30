#include "platform/linux/services/AnswerWatch.h"

#include "platform/linux/services/Buses.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>

namespace tarvin::services {

AnswerWatch::AnswerWatch(TellUser tellUser)
    : m_tellUser(std::move(tellUser))
{ }

void AnswerWatch::tellOfRefusal(const QDBusPendingCall& call, const QString& function)
{
    QMetaObject::invokeMethod(
        this, [this, call, function] { look(call, function); }, Qt::QueuedConnection);
}

void AnswerWatch::look(const QDBusPendingCall& call, const QString& function)
{
    auto* const watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, function] {
        watcher->deleteLater();
        const QDBusMessage answer = watcher->reply();
        if (answer.type() != QDBusMessage::ErrorMessage || meansSilence(answer))
            return;
        m_tellUser(meansMissing(answer) ? notAvailable(function) : refused(function, answer.errorMessage()));
    });
}

} // namespace tarvin::services
