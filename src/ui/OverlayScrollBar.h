#pragma once

#include <QMargins>
#include <QScrollBar>

class QAbstractScrollArea;

namespace tarvin {

/// A vertical scroll bar that lies over the right margin of an area's content instead of taking room from it; there
/// only while there is something to scroll. The area owns it.
class OverlayScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    /// @param margins between the bar and the edges of the area; the left one has no meaning
    explicit OverlayScrollBar(QAbstractScrollArea& area, const QMargins& margins = {0, 6, 0, 6});

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QAbstractScrollArea& m_area;
    const QMargins m_margins;
};

} // namespace tarvin
