#pragma once

#include "ui/AnimatedValue.h"
#include "ui/Colour.h"

#include <QWidget>

#include <chrono>
#include <functional>

namespace tarvin {

/// Whether a panel may have the keyboard. One that may not can never be typed into.
enum class PanelFocus { accepts, refuses };

struct PanelLook
{
    double radius = 16;
    Colour fill;
    Colour stroke;
    double strokeWidth = 1;
    /// Drawn only where a compositor blends the window; nothing otherwise.
    double shadowSigma = 0;
    Colour shadow;
    double shadowOffsetY = 0;
};

/// The plate of a floating tool: without a frame, above all windows, in no taskbar. Where a compositor runs it is
/// translucent and has a shadow; where none runs its corners are cut by a mask. Made hidden; fades in and out.
///
/// Children are laid out within `contentsRect`, which is the plate.
class PanelWindow : public QWidget
{
    Q_OBJECT

public:
    /// @param plateSize without the shadow
    /// @param hasCompositor asked whenever the panel is shown
    PanelWindow(const QSize& plateSize, const PanelLook& look, PanelFocus focus, std::function<bool()> hasCompositor);

    void setPlateSize(const QSize& size);
    /// The plate within the window.
    [[nodiscard]] QRect plate() const;
    /// The plate with its rounded corners.
    [[nodiscard]] QRegion plateRegion() const;
    /// Moves the window so that the plate lies there.
    void movePlate(const QPoint& topLeft);
    /// The plate comes to lie in the middle of the frame, on whole points; its shadow may reach beyond.
    void centrePlateIn(const QRectF& frame);

    /// Shows the panel, from the opacity it has now.
    void fadeIn(std::chrono::milliseconds duration);
    /// Hides the panel at the end, unless it is shown again before.
    void fadeOut(std::chrono::milliseconds duration);

Q_SIGNALS:
    /// The panel is gone from the screen.
    void fadedOut();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followCompositor();
    [[nodiscard]] int shadowMargin() const;

    QSize m_plateSize;
    PanelLook m_look;
    std::function<bool()> m_hasCompositor;
    bool m_isComposited = true;
    AnimatedValue m_opacity;
};

} // namespace tarvin
