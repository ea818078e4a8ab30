#include "ui/Shadows.h"

#include <QCache>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace tarvin {

namespace {

/// Wider blurs are made at a lower resolution and enlarged; they have no detail to lose.
constexpr double finestSigma = 6; // in pixels of the image that is blurred
constexpr int cacheSizeInKilobytes = 4096;

struct ImageKey
{
    QSize size; ///< of the box, in device pixels
    int cornerRadius; ///< in sixteenths of a device pixel
    int sigma; ///< likewise
    QRgb colour;

    bool operator==(const ImageKey&) const = default;
};

std::size_t qHash(const ImageKey& key, std::size_t seed = 0)
{
    return qHashMulti(seed, key.size.width(), key.size.height(), key.cornerRadius, key.sigma, key.colour);
}

/// The blurred box with its margin.
/// @param box, cornerRadius, sigma in pixels of the image
QImage blurredBox(const QSizeF& box, double cornerRadius, double sigma, const QColor& colour)
{
    const double margin = std::ceil(blurReach(sigma));
    const QSize size(
        static_cast<int>(std::ceil(box.width() + 2 * margin)), static_cast<int>(std::ceil(box.height() + 2 * margin)));
    return blurred(size, sigma, colour, [&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(QRectF(QPointF(margin, margin), box), cornerRadius, cornerRadius);
    });
}

/// The image in device pixels, with a margin of `blurReach` rounded up on each side.
QPixmap makeImage(const ImageKey& key)
{
    const double sigma = key.sigma / 16.0;
    const double cornerRadius = key.cornerRadius / 16.0;
    const double scale = std::min(1.0, finestSigma / sigma);
    const int margin = static_cast<int>(std::ceil(blurReach(sigma)));
    QImage image =
        blurredBox(QSizeF(key.size) * scale, cornerRadius * scale, sigma * scale, QColor::fromRgba(key.colour));
    if (scale < 1) {
        // What was computed has a margin of whole pixels, so its middle is what has to be kept in place.
        QImage large(key.size + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
        large.fill(Qt::transparent);
        QPainter painter(&large);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const double smallMargin = std::ceil(blurReach(sigma * scale));
        painter.drawImage(QRectF(margin - smallMargin / scale, margin - smallMargin / scale, image.width() / scale,
                              image.height() / scale),
            image);
        painter.end();
        image = large;
    }
    return QPixmap::fromImage(image);
}

const QPixmap& cachedImage(const ImageKey& key)
{
    static QCache<ImageKey, QPixmap> cache(cacheSizeInKilobytes);
    if (QPixmap* const found = cache.object(key))
        return *found;
    auto* const made = new QPixmap(makeImage(key));
    static QPixmap tooLarge;
    tooLarge = *made; // the cache deletes at once what doesn't fit
    return cache.insert(key, made, std::max(1, made->width() * made->height() / 256)) ? *made : tooLarge;
}

/// The cuts of a nine-patch along one axis: the two ends keep their size, the middle is stretched.
struct Cuts
{
    double target[4];
    double source[4];
};

Cuts cutsOf(double start, double length, double sourceLength, double end)
{
    return {{start, start + end, start + length - end, start + length}, {0, end, sourceLength - end, sourceLength}};
}

} // namespace

void drawShadow(QPainter& painter, const QRectF& box, const Shadow& shadow)
{
    if (shadow.colour.opacity <= 0 || box.isEmpty())
        return;
    const double scale = painter.device()->devicePixelRatioF();
    const double sigma = std::max(shadow.sigma * scale, 0.1);
    const int margin = static_cast<int>(std::ceil(blurReach(std::round(sigma * 16) / 16)));
    const double cornerRadius = std::min(shadow.cornerRadius, std::min(box.width(), box.height()) / 2) * scale;
    // What the blur of a corner changes; beyond that the edge is the same all along.
    const int end = static_cast<int>(std::ceil(blurReach(sigma) + cornerRadius)) + 1;
    const QSize full(
        static_cast<int>(std::lround(box.width() * scale)), static_cast<int>(std::lround(box.height() * scale)));
    const QSize kept(std::min(full.width(), 2 * end + 1), std::min(full.height(), 2 * end + 1));
    const QPixmap& image = cachedImage({.size = kept,
        .cornerRadius = static_cast<int>(std::lround(cornerRadius * 16)),
        .sigma = static_cast<int>(std::lround(sigma * 16)),
        .colour = shadow.colour.toQColor().rgba()});

    painter.save();
    // Smoothing costs many times as much and shows only where whole images are scaled or turned: what is stretched is
    // the same all along, and a blur may lie half a pixel off.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.translate(box.topLeft());
    painter.scale(1 / scale, 1 / scale);
    const Cuts x = cutsOf(-margin, full.width() + 2 * margin, image.width(), margin + std::min(end, kept.width() / 2));
    const Cuts y =
        cutsOf(-margin, full.height() + 2 * margin, image.height(), margin + std::min(end, kept.height() / 2));
    if (kept == full) {
        painter.drawPixmap(QPointF(-margin, -margin), image);
    } else {
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                const QRectF target(
                    QPointF(x.target[column], y.target[row]), QPointF(x.target[column + 1], y.target[row + 1]));
                const QRectF source(
                    QPointF(x.source[column], y.source[row]), QPointF(x.source[column + 1], y.source[row + 1]));
                if (!target.isEmpty() && !source.isEmpty())
                    painter.drawPixmap(target, image, source);
            }
        }
    }
    painter.restore();
}

} // namespace tarvin
