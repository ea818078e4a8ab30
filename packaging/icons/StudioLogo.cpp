// The mark that the Studio shows.

#include "Logo.h"
#include "studio/TarvinLogoView.h"

namespace tarvin {

void drawLogo(QPainter& painter, const QRectF& square)
{
    paintTarvinLogo(painter, square, LogoGlow::none);
}

} // namespace tarvin
