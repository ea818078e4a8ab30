#pragma once

#include <QCache>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPixmap>

#include <functional>
#include <memory>

namespace tarvin {

class Scheduler;

/// The icons of applications. Each is read on a background queue when it is first asked for, the latest wishes first,
/// so that a list never waits for them. Main thread only.
class ApplicationIcons : public QObject
{
    Q_OBJECT

public:
    /// Reads one icon as a square of that many pixels; null where there is none. Called on background threads, one call
    /// at a time, possibly after the icons have gone.
    /// @param icon as `ApplicationBundle` has it
    using Read = std::function<QImage(const QString& icon, int pixels)>;

    ApplicationIcons(Scheduler& scheduler, Read read);

    /// The icon, or a null pixmap until it has been read, and for ever where there is none.
    /// @param size in logical pixels
    /// @param scale device pixels to a logical one
    [[nodiscard]] QPixmap icon(const QString& icon, int size, double scale);

Q_SIGNALS:
    /// Icons have arrived.
    void changed();

private:
    struct Wish
    {
        QString icon;
        int pixels = 0;
        bool operator==(const Wish&) const = default;
        friend std::size_t qHash(const Wish& wish, std::size_t seed = 0)
        {
            return qHashMulti(seed, wish.icon, wish.pixels);
        }
    };
    struct Arrival
    {
        Wish wish;
        QImage image;
    };

    void readNext();
    void take(const QList<Arrival>& arrivals);

    Scheduler& m_scheduler;
    Read m_read;
    QCache<Wish, QPixmap> m_icons; ///< null pixmaps among them
    QList<Wish> m_wishes; ///< the latest at the end
    QList<Wish> m_underWay;
    /// Held weakly by a reading under way.
    std::shared_ptr<ApplicationIcons*> m_self = std::make_shared<ApplicationIcons*>(this);
};

} // namespace tarvin
