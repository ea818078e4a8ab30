#include "studio/cards/view/ChoiceRow.h"

#include "ui/FocusRing.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/RadioCircle.h"
#include "ui/TextLine.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

constexpr int rowHeight = 24;
constexpr double inset = 4;
constexpr double spacing = 8;
constexpr double radius = 6;
constexpr Motion choiceMotion = Motion::spring(0.25, 0.8);

TextStyle textStyle(bool isChosen)
{
    return {.size = 12, .weight = isChosen ? TextWeight::bold : TextWeight::medium, .face = TextFace::rounded};
}

} // namespace

ChoiceRow::ChoiceRow(const QString& text, QWidget* parent)
    : QRadioButton(text, parent)
    , m_chosen(0, [this] { update(); })
{
    setAccessibleName(text); // a text alone would be read without its ampersand
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::toggled, this, [this](bool isChosen) {
        if (isVisible())
            m_chosen.animateTo(isChosen ? 1 : 0, choiceMotion);
        else
            m_chosen.jumpTo(isChosen ? 1 : 0);
    });
}

QSize ChoiceRow::sizeHint() const
{
    const double width = 2 * inset + radioCircleSize + spacing + textWidth(text(), textStyle(true));
    return {static_cast<int>(std::ceil(width)), rowHeight};
}

void ChoiceRow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    if (underMouse())
        fillPlate(painter, box, radius, palette::white.at(0.04));
    drawRadioCircle(painter, {inset + radioCircleSize / 2, box.center().y()}, m_chosen.value());
    const double left = inset + radioCircleSize + spacing;
    drawText(painter, box.adjusted(left, 0, 0, 0), Qt::AlignLeft, text(), textStyle(isChecked()),
        palette::white.at(isChecked() ? 1 : 0.85));
    if (hasFocus())
        drawFocusRing(painter, box, radius);
}

void ChoiceRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QRadioButton::keyPressEvent(event);
}

} // namespace tarvin
