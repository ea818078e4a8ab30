#include "ui/Blur.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarvin {

namespace {

std::vector<float> gaussian(double sigma)
{
    const int reach = static_cast<int>(std::ceil(blurReach(sigma)));
    std::vector<float> weights(2 * static_cast<std::size_t>(reach) + 1);
    float sum = 0;
    double offset = -reach;
    for (float& weight : weights) {
        weight = static_cast<float>(std::exp(-0.5 * offset * offset / (sigma * sigma)));
        sum += weight;
        ++offset;
    }
    for (float& weight : weights)
        weight /= sum;
    return weights;
}

/// Blurs every row of @p source and writes it as a column, so that two calls blur both ways.
std::vector<float> blurredAndTurned(
    const std::vector<float>& source, int width, int height, const std::vector<float>& weights)
{
    const int reach = static_cast<int>(weights.size() / 2);
    std::vector<float> turned(source.size());
    for (int y = 0; y < height; ++y) {
        const float* const row = source.data() + static_cast<std::ptrdiff_t>(y) * width;
        for (int x = 0; x < width; ++x) {
            float sum = 0;
            for (int from = std::max(0, x - reach); from <= std::min(width - 1, x + reach); ++from)
                sum += row[from]
                    * weights[static_cast<std::size_t>(from) + static_cast<std::size_t>(reach)
                        - static_cast<std::size_t>(x)];
            turned[static_cast<std::size_t>(x) * static_cast<std::size_t>(height) + static_cast<std::size_t>(y)] = sum;
        }
    }
    return turned;
}

} // namespace

QImage blurred(const QSize& size, double sigma, const QColor& colour, const std::function<void(QPainter&)>& paint)
{
    const int width = size.width();
    const int height = size.height();
    QImage mask(size, QImage::Format_Grayscale8);
    mask.fill(Qt::black);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();

    std::vector<float> values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        std::copy_n(mask.constScanLine(y), width, values.begin() + static_cast<std::ptrdiff_t>(y) * width);
    const std::vector<float> weights = gaussian(sigma);
    values = blurredAndTurned(values, width, height, weights);
    values = blurredAndTurned(values, height, width, weights);

    const auto opacity = static_cast<float>(colour.alphaF());
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        const float* const row = values.data() + static_cast<std::ptrdiff_t>(y) * width;
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const float alpha = row[x] * opacity; // up to 255
            const auto part = [alpha](float channel) { return static_cast<int>(std::lround(channel * alpha)); };
            line[x] = qRgba(part(colour.redF()), part(colour.greenF()), part(colour.blueF()), part(1.0F));
        }
    }
    return image;
}

} // namespace tarvin
