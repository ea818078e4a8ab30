#include "platform/linux/desktop/InstanceRequest.h"

#include "platform/linux/desktop/ApplicationId.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace tarvin::desktop {

namespace {

/// Arguments of a start by the session.
constexpr auto loginArguments = std::to_array<QStringView>({u"--startup", u"--background", u"-loginItem"});

const QString urlsKey = QStringLiteral("urls");
const QString startupIdKey = QStringLiteral("startupId");

bool isOwnUrl(const QString& argument)
{
    return argument.startsWith(urlScheme.toString() + u':', Qt::CaseInsensitive);
}

} // namespace

std::optional<InstanceRequest> requestOfCommandLine(const QStringList& arguments, const QByteArray& startupId)
{
    const QStringList given = arguments.mid(1);
    InstanceRequest request{.urls = {}, .startupId = startupId};
    std::copy_if(given.cbegin(), given.cend(), std::back_inserter(request.urls), isOwnUrl);
    const bool isLogin = std::any_of(
        loginArguments.begin(), loginArguments.end(), [&](QStringView argument) { return given.contains(argument); });
    return isLogin && request.urls.isEmpty() ? std::nullopt : std::optional(request);
}

QByteArray takeStartupId()
{
    // The second name is that of Wayland sessions and of launchers that know both.
    QByteArray id;
    for (const char* variable : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"}) {
        if (id.isEmpty())
            id = qgetenv(variable);
        qunsetenv(variable);
    }
    return id;
}

QByteArray toLine(const InstanceRequest& request)
{
    const QJsonObject object{
        {urlsKey, QJsonArray::fromStringList(request.urls)}, {startupIdKey, QString::fromUtf8(request.startupId)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<InstanceRequest> requestFromLine(const QByteArray& line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject() || !document[urlsKey].isArray())
        return std::nullopt;
    InstanceRequest request;
    const QJsonArray urls = document[urlsKey].toArray();
    for (const auto& url : urls)
        request.urls += url.toString();
    request.startupId = document[startupIdKey].toString().toUtf8();
    return request;
}

} // namespace tarvin::desktop
