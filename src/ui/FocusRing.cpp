#include "ui/FocusRing.h"

#include "ui/Palette.h"
#include "ui/Plates.h"

namespace tarvin {

void drawFocusRing(QPainter& painter, const QRectF& box, double radius)
{
    strokePlate(painter, box, radius, 1.5, palette::white.at(0.75));
}

} // namespace tarvin
