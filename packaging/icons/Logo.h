#pragma once

class QPainter;
class QRectF;

namespace tarvin {

/// Draws the program's mark into the square. Which drawing that is, the build decides.
void drawLogo(QPainter& painter, const QRectF& square);

} // namespace tarvin
