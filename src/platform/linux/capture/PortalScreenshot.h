#pragma once

#include "platform/linux/services/Buses.h"

#include <QObject>
#include <QVariantMap>

#include <functional>

namespace tarvin::capture {

/// Screenshots by the desktop's portal, which may ask the user first. One at a time is enough; a later one takes the
/// place of an earlier one that is never answered.
class PortalScreenshot : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { taken, cancelledByUser, failed };
    /// @param file with the picture, which is the receiver's to delete
    using Handler = std::function<void(Outcome, const QString& file)>;

    explicit PortalScreenshot(services::Buses::Provider sessionBus);

    /// Whether the desktop has a portal that takes screenshots. In the background.
    [[nodiscard]] bool isThere() const;

    enum class Choice { none, ofUser };
    /// Returns at once; in the background.
    /// @param choice whether the user is shown what to choose from
    /// @param handler called once on the main thread
    void take(Choice choice, Handler handler);

private Q_SLOTS:
    void respond(uint code, const QVariantMap& results);

private: // NOLINT(readability-redundant-access-specifiers): no slots from here on
    void answer(Outcome outcome, const QString& file = {});

    services::Buses::Provider m_sessionBus;
    Handler m_handler; ///< main thread
    int m_requests = 0; ///< main thread
};

} // namespace tarvin::capture
