#pragma once

#include <QRectF>
#include <QStringList>

class QPainter;

namespace tarvin {

/// The bubble above the selected key that tells what it does.
struct KeyCalloutBubble
{
    QStringList lines;

    /// Everything of it with its glow, above a key.
    [[nodiscard]] QRectF reach(const QRectF& key) const;
    /// The plate that holds the lines.
    [[nodiscard]] QRectF bubble(const QRectF& key) const;
    /// @param opacity from 0 to 1
    void paint(QPainter& painter, const QRectF& key, double opacity) const;
};

} // namespace tarvin
