#pragma once

#include "ui/Blur.h"
#include "ui/Colour.h"

#include <QRectF>

class QPainter;

namespace tarvin {

/// The blurred image of a rounded rectangle: a shadow, or with a bright colour a glow.
struct Shadow
{
    Colour colour;
    double sigma = 0; ///< of the Gaussian; what is called a blur or shadow radius elsewhere
    double cornerRadius = 0;
};

/// Draws the image of a box of that size and place, reaching three sigma beyond it. The blurred corners are made once
/// for each shadow and scale and kept; the rest is stretched from them. Main thread only.
void drawShadow(QPainter& painter, const QRectF& box, const Shadow& shadow);

} // namespace tarvin
