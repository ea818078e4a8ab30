#pragma once

#include <QColor>
#include <QImage>

#include <functional>

class QPainter;

namespace tarvin {

/// How far a blur spreads: less than half a shade of 255 is left beyond.
[[nodiscard]] constexpr double blurReach(double sigma)
{
    return 3 * sigma;
}

/// What @p paint draws in white, blurred and in another colour. Premultiplied.
/// @param size of the picture with all that the blur spreads to, in pixels
/// @param sigma of the Gaussian, in pixels
[[nodiscard]] QImage blurred(
    const QSize& size, double sigma, const QColor& colour, const std::function<void(QPainter&)>& paint);

} // namespace tarvin
