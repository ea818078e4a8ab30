#pragma once

#include "ui/Colour.h"
#include "ui/Fonts.h"

#include <QRectF>
#include <QString>

class QPainter;

namespace tarvin {

// One line of text. The signs of the modifier keys and the arrow of notices among it are drawn as symbols, which no
// text font has in its own style.

/// The room that a line takes, in logical pixels.
[[nodiscard]] double textWidth(const QString& text, const TextStyle& style);
/// The height of a line's box; stacks of lines and symbols are laid out with it.
[[nodiscard]] double lineHeight(const TextStyle& style);
/// The text, or as much of it as fits with an ellipsis.
[[nodiscard]] QString elidedText(const QString& text, const TextStyle& style, double width);
/// @param alignment where in the box the line stands; vertically it is centred unless at the top or the bottom
void drawText(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text,
    const TextStyle& style, const QColor& colour);

} // namespace tarvin
