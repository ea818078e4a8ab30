#include "ui/SheetPanel.h"

#include "ui/Palette.h"
#include "ui/Plates.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPainterPath>

namespace tarvin {

namespace {

class SheetPanelAccessible : public QAccessibleWidget
{
public:
    explicit SheetPanelAccessible(SheetPanel* panel)
        : QAccessibleWidget(panel, QAccessible::Dialog)
    { }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = true;
        return state;
    }
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* const panel = qobject_cast<SheetPanel*>(object);
    return panel ? new SheetPanelAccessible(panel) : nullptr;
}

} // namespace

SheetPanel::SheetPanel(const QString& name, const QSize& size, const Colour& fill)
    : m_fill(fill)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    setAccessibleName(name);
    setFixedSize(size);
    setFocusPolicy(Qt::ClickFocus); // a click beside the controls takes the keyboard from them
}

void SheetPanel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), radius, m_fill);
    painter.save();
    QPainterPath plate;
    plate.addRoundedRect(rect(), radius, radius);
    painter.setClipPath(plate);
    paintGround(painter);
    painter.restore();
    strokePlate(painter, rect(), radius, 1, palette::white.at(0.09));
}

} // namespace tarvin
