#pragma once

#include "ui/Colour.h"
#include "ui/Fonts.h"

#include <QPointF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace tarvin {

/// A short text on a small plate: a badge or a chip.
struct Pill
{
    QString text;
    TextStyle style;
    Colour textColour;
    Colour fill;
    double insetX = 4;
    double insetY = 1.5;
    double radius = 4;
    double letterSpacing = 0; ///< between its characters

    [[nodiscard]] QSizeF size() const;
};

void drawPill(QPainter& painter, const QPointF& topLeft, const Pill& pill);

} // namespace tarvin
