#include "menubar/MenuBarIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace tarvin {

namespace {

constexpr int grid = 24; ///< the drawing's own units

/// A keyboard with three rows of keys cut out of it.
QPainterPath keyboard()
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addRoundedRect(QRectF(2, 5.5, 20, 13), 2.5, 2.5);
    for (int column = 0; column < 5; ++column) {
        const qreal x = 4.6 + column * 3.2;
        path.addRoundedRect(QRectF(x, 8.0, 2.0, 2.0), 0.4, 0.4);
        path.addRoundedRect(QRectF(x, 11.2, 2.0, 2.0), 0.4, 0.4);
    }
    path.addRoundedRect(QRectF(7.8, 14.4, 8.4, 2.0), 0.4, 0.4);
    return path;
}

} // namespace

QPixmap paintedMenuBarIcon(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(static_cast<qreal>(size) / grid, static_cast<qreal>(size) / grid);
    const QPainterPath path = keyboard();
    painter.strokePath(path, QPen(QColor(0, 0, 0, 110), 1.0));
    painter.fillPath(path, QColor(245, 245, 245));
    return pixmap;
}

QIcon menuBarIcon()
{
    QIcon painted;
    for (const int size : {16, 22, 24, 32, 44, 48, 64})
        painted.addPixmap(paintedMenuBarIcon(size));
    // Where the bar colours its items by itself, as on macOS, it takes the shape alone.
    painted.setIsMask(true);
    return painted;
}

} // namespace tarvin
