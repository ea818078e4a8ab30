#include "studio/picker/view/PickerSectionHeader.h"

#include "studio/picker/view/PickerHeading.h"
#include "studio/picker/view/PickerMetrics.h"
#include "ui/Palette.h"
#include "ui/Symbols.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace tarvin {

namespace {

using palette::white;

constexpr int ringInset = 6; // of the button's box from the pane's edges
constexpr double radius = 6;
constexpr double chevronSize = 10;

} // namespace

PickerSectionHeader::PickerSectionHeader(QWidget* parent)
    : PaintedButton(parent)
{
    setCursor(Qt::PointingHandCursor);
}

void PickerSectionHeader::setHeading(const QString& heading)
{
    if (text() == heading)
        return;
    setText(heading);
    setAccessibleName(heading); // a text alone would be read without its ampersand
}

void PickerSectionHeader::setExpanded(bool isExpanded)
{
    if (m_isExpanded == isExpanded)
        return;
    m_isExpanded = isExpanded;
    update();
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QSize PickerSectionHeader::sizeHint() const
{
    return {pickermetrics::paneWidth, lineHeight + 2 * reach};
}

void PickerSectionHeader::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    drawPickerHeading(painter, box.adjusted(pickermetrics::listInset, 0, 0, 0), text(), white.at(0.45 + 0.2 * hover()));
    const double chevronMiddle = box.right() - pickermetrics::sideInset - chevronSize * symbolBoxPerSize / 2;
    drawSymbol(painter, m_isExpanded ? Symbol(u"chevron.up") : Symbol(u"chevron.down"),
        {chevronMiddle, box.center().y()}, chevronSize, white.at(0.35 + 0.2 * hover()).toQColor());
    drawFocusRing(painter, box.adjusted(ringInset, 0, -ringInset, 0), radius);
}

void PickerSectionHeader::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        Q_EMIT movePressed(static_cast<Qt::Key>(event->key()));
        return;
    case Qt::Key_Left:
        if (m_isExpanded)
            click();
        return;
    case Qt::Key_Right:
        if (!m_isExpanded)
            click();
        return;
    default:
        PaintedButton::keyPressEvent(event);
    }
}

} // namespace tarvin
