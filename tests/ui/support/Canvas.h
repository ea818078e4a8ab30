#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

#include <functional>

namespace tarvin::test {

/// A picture painted on black, and its colours at logical points.
class Canvas
{
public:
    explicit Canvas(
        QSize size, const std::function<void(QPainter&)>& paint, double scale = 1, QColor ground = Qt::black)
        : m_image(size * scale, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.setDevicePixelRatio(scale);
        m_image.fill(ground);
        QPainter painter(&m_image);
        paint(painter);
    }
    explicit Canvas(QImage image)
        : m_image(std::move(image))
    { }

    [[nodiscard]] QColor at(double x, double y) const
    {
        const double scale = m_image.devicePixelRatio();
        return m_image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
    }
    /// How bright the point is, from 0 to 1.
    [[nodiscard]] double lightAt(double x, double y) const { return at(x, y).valueF(); }
    [[nodiscard]] const QImage& image() const { return m_image; }

private:
    QImage m_image;
};

} // namespace tarvin::test
