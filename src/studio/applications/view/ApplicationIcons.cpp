#include "studio/applications/view/ApplicationIcons.h"

#include "platform/ports/Scheduler.h"

#include <cmath>
#include <utility>

namespace tarvin {

namespace {

constexpr qsizetype iconsKept = 800;
/// Read in one go: about what a screenful shows.
constexpr qsizetype batch = 12;
/// What was asked for longer ago has been scrolled away, and is asked for again when it comes back.
constexpr qsizetype wishesKept = 48;

} // namespace

ApplicationIcons::ApplicationIcons(Scheduler& scheduler, Read read)
    : m_scheduler(scheduler)
    , m_read(std::move(read))
    , m_icons(iconsKept)
{ }

QPixmap ApplicationIcons::icon(const QString& icon, int size, double scale)
{
    if (icon.isEmpty())
        return {};
    const Wish wish{.icon = icon, .pixels = static_cast<int>(std::lround(size * scale))};
    if (const QPixmap* const known = m_icons.object(wish)) {
        QPixmap pixmap = *known;
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }
    if (m_underWay.contains(wish))
        return {};
    m_wishes.removeOne(wish);
    m_wishes.append(wish);
    if (m_wishes.size() > wishesKept)
        m_wishes.removeFirst();
    if (m_underWay.isEmpty())
        readNext();
    return {};
}

void ApplicationIcons::readNext()
{
    const qsizetype count = std::min(batch, m_wishes.size());
    if (count == 0)
        return;
    m_underWay = m_wishes.last(count);
    m_wishes.resize(m_wishes.size() - count);
    m_scheduler.runInBackground(BackgroundQueue::utility,
        [&scheduler = m_scheduler, read = m_read, wishes = m_underWay, self = std::weak_ptr(m_self)] {
            QList<Arrival> arrivals;
            for (const Wish& wish : wishes)
                arrivals.append({.wish = wish, .image = read(wish.icon, wish.pixels)});
            scheduler.post([self, arrivals = std::move(arrivals)] {
                if (const auto living = self.lock())
                    (*living)->take(arrivals);
            });
        });
}

void ApplicationIcons::take(const QList<Arrival>& arrivals)
{
    for (const Arrival& arrival : arrivals)
        m_icons.insert(arrival.wish, new QPixmap(QPixmap::fromImage(arrival.image)));
    m_underWay.clear();
    readNext();
    Q_EMIT changed();
}

} // namespace tarvin
