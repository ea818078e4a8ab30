#include "studio/picker/view/PickerHeading.h"

#include "ui/Pill.h"

#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

constexpr TextStyle headingText{.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded};

/// Letters stand apart only in pills; this one has no plate.
Pill wide(const QString& words, const Colour& colour)
{
    return {.text = words,
        .style = headingText,
        .textColour = colour,
        .fill = colour.at(0),
        .insetX = 0,
        .insetY = 0,
        .radius = 0,
        .letterSpacing = 0.22};
}

} // namespace

void drawPickerHeading(QPainter& painter, const QRectF& box, const QString& words, const Colour& colour)
{
    const Pill pill = wide(words, colour);
    drawPill(painter, {box.left(), box.center().y() - pill.size().height() / 2}, pill);
}

PickerHeading::PickerHeading(const QString& words, QWidget* parent)
    : TextLabel(words, headingText, usualColour, parent)
{ }

QSize PickerHeading::sizeHint() const
{
    const QSizeF size = wide(text(), usualColour).size();
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

void PickerHeading::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawPickerHeading(painter, rect(), text(), usualColour);
}

} // namespace tarvin
