#pragma once

#include "platform/linux/services/UserNotice.h"

#include <QDBusPendingCall>
#include <QObject>

namespace tarvin::services {

/// Waits for answers that may take minutes, since the user may be asked for a password first, and tells the user of
/// those that are a refusal.
class AnswerWatch : public QObject
{
    Q_OBJECT

public:
    /// Made on the main thread.
    explicit AnswerWatch(TellUser tellUser);

    /// Any thread; returns at once.
    /// @param function as the user knows it, in the words of a notice
    void tellOfRefusal(const QDBusPendingCall& call, const QString& function);

private:
    void look(const QDBusPendingCall& call, const QString& function);

    TellUser m_tellUser;
};

/// How long the other side may take, with a user who looks for a password in between.
inline constexpr int longestAnswerMilliseconds = 5 * 60 * 1000;

} // namespace tarvin::services
