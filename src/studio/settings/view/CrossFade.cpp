#include "studio/settings/view/CrossFade.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace tarvin {

QPixmap CrossFade::pictureOf(QWidget& widget)
{
    const double scale = widget.devicePixelRatioF();
    QPixmap picture(widget.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    widget.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

void CrossFade::play(QWidget& over, const QRect& where, Change change, const Motion& motion)
{
    auto* const fade = new CrossFade(over, std::move(change)); // the widget owns it
    fade->setGeometry(where);
    fade->show();
    fade->raise();
    fade->m_progress.animateTo(1, motion);
}

CrossFade::CrossFade(QWidget& over, Change change)
    : QWidget(&over)
    , m_change(std::move(change))
    , m_progress(0, [this] {
        if (m_progress.state() == QAbstractAnimation::Stopped) {
            hide();
            deleteLater();
        }
        update();
    })
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CrossFade::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_change.ground.toQColor());
    // A spring swings over; what has come is there.
    const double progress = std::clamp(m_progress.value(), 0.0, 1.0);
    const QPointF way = m_change.way;
    painter.setOpacity(1 - progress);
    painter.drawPixmap(-way * progress, m_change.before);
    painter.setOpacity(progress);
    painter.drawPixmap(way * (1 - progress), m_change.after);
}

} // namespace tarvin
