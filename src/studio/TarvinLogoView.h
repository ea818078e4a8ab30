#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QWidget>

class QPainter;

namespace tarvin {

enum class LogoGlow { none, shining };

// The shapes of the mark; each fills the rectangle that it is given.

[[nodiscard]] QPainterPath polygonDiamond(const QRectF& box);
/// The letter and the bar across it, as lines to be stroked.
[[nodiscard]] QPainterPath quantumCommandGlyph(const QRectF& box);

/// Draws the mark into a square. Without the glow nothing lies outside of it.
void paintTarvinLogo(QPainter& painter, const QRectF& square, LogoGlow glow);

/// The program's mark at a fixed size.
class TarvinLogoView : public QWidget
{
    Q_OBJECT

public:
    /// @param size the side of the mark; with the glow the widget is larger by a margin on each side
    TarvinLogoView(double size, LogoGlow glow, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    /// Around the mark.
    [[nodiscard]] int margin() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_size;
    LogoGlow m_glow;
};

} // namespace tarvin
