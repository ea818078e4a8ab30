#include "ui/OverlayScrollBar.h"

#include <QAbstractScrollArea>
#include <QEvent>

namespace tarvin {

OverlayScrollBar::OverlayScrollBar(QAbstractScrollArea& area, const QMargins& margins)
    : QScrollBar(Qt::Vertical, &area)
    , m_area(area)
    , m_margins(margins)
{
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.installEventFilter(this);
    QScrollBar* const hidden = area.verticalScrollBar();
    connect(hidden, &QScrollBar::rangeChanged, this, [this](int least, int most) {
        setRange(least, most);
        // The hidden bar learns of it later than of its range.
        setPageStep(m_area.viewport()->height());
        setVisible(most > least);
    });
    connect(hidden, &QScrollBar::valueChanged, this, &QScrollBar::setValue);
    connect(this, &QScrollBar::valueChanged, hidden, &QScrollBar::setValue);
    hide();
    place();
}

void OverlayScrollBar::place()
{
    const int width = sizeHint().width();
    setGeometry(m_area.width() - m_margins.right() - width, m_margins.top(), width,
        m_area.height() - m_margins.top() - m_margins.bottom());
    raise();
}

bool OverlayScrollBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_area && event->type() == QEvent::Resize)
        place();
    return QScrollBar::eventFilter(watched, event);
}

} // namespace tarvin
