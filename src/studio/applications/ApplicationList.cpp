#include "studio/applications/ApplicationList.h"

#include "platform/ports/Scheduler.h"

#include <utility>

namespace tarvin {

ApplicationList::ApplicationList(Scheduler& scheduler, Scan scan)
    : m_scheduler(scheduler)
    , m_scan(std::move(scan))
{ }

void ApplicationList::load()
{
    if (std::exchange(m_isLoading, true))
        return;
    m_scheduler.runInBackground(
        BackgroundQueue::userInitiated, [&scheduler = m_scheduler, scan = m_scan, self = std::weak_ptr(m_self)] {
            ApplicationSearch search(scan());
            scheduler.post([self, search = std::move(search)]() mutable {
                if (const auto living = self.lock())
                    (*living)->take(std::move(search));
            });
        });
}

void ApplicationList::take(ApplicationSearch search)
{
    m_search = std::move(search);
    m_hasLoaded = true;
    Q_EMIT loaded();
}

} // namespace tarvin
