#pragma once

#include "studio/applications/ApplicationSearch.h"

#include <QObject>

#include <functional>
#include <memory>

namespace tarvin {

class Scheduler;

/// The installed applications as they were when somebody first asked; empty until the scan, which runs on a background
/// queue, has ended. Main thread only.
class ApplicationList : public QObject
{
    Q_OBJECT

public:
    /// Called on a background thread, possibly after this object has gone.
    using Scan = std::function<QList<InstalledApplication>()>;

    ApplicationList(Scheduler& scheduler, Scan scan);

    /// Starts the scan; nothing at any further call.
    void load();
    [[nodiscard]] bool hasLoaded() const { return m_hasLoaded; }
    [[nodiscard]] const ApplicationSearch& search() const { return m_search; }

Q_SIGNALS:
    void loaded();

private:
    void take(ApplicationSearch search);

    Scheduler& m_scheduler;
    Scan m_scan;
    ApplicationSearch m_search;
    bool m_isLoading = false;
    bool m_hasLoaded = false;
    /// Held weakly by a scan under way.
    std::shared_ptr<ApplicationList*> m_self = std::make_shared<ApplicationList*>(this);
};

} // namespace tarvin
