#pragma once

#include "ui/AnimatedValue.h"

#include <QAbstractButton>

namespace tarvin {

/// A button that paints itself. What it is called for assistive technology is its accessible name, else its text.
/// Space presses it, as every button, and Return does too.
class PaintedButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PaintedButton(QWidget* parent = nullptr);

    /// Shown as the tooltip, and the name of a button that has no text yet.
    void setTip(const QString& tip);

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// From 0 to 1, follows the pointer smoothly.
    [[nodiscard]] double hover() const { return m_hover.value(); }
    /// The ring of the control that has the keyboard; draws nothing without it.
    void drawFocusRing(QPainter& painter, const QRectF& box, double radius) const;

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    AnimatedValue m_hover;
};

} // namespace tarvin
