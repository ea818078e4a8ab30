#pragma once

#include <QImage>
#include <QWidget>

#include <optional>
#include <vector>

namespace tarvin::capture {

/// Lets the user choose a part of a picture of the screen, which stands still over the screen meanwhile: a region by
/// dragging, or a window by a click. Escape and the other mouse buttons break it off.
class AreaPicker : public QWidget
{
    Q_OBJECT

public:
    /// @param picture of the whole screen, in pixels of the server
    /// @param windows the areas to choose from, front to back, in pixels; empty to let the user draw a region
    AreaPicker(QImage picture, std::vector<QRect> windows);

    /// Covers the screen and takes keyboard and pointer.
    void begin();

Q_SIGNALS:
    /// The last thing that a picker says, once.
    /// @param area in pixels of the picture; nothing where the user broke it off
    void done(std::optional<QRect> area);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool choosesWindows() const { return !m_windows.empty(); }
    /// The area chosen as it is now, in pixels; empty if none.
    [[nodiscard]] QRect chosenArea() const;
    [[nodiscard]] QPoint inPixels(const QPointF& point) const;
    [[nodiscard]] double pixelsPerPoint() const;
    void finish(std::optional<QRect> area);

    const QImage m_picture;
    const std::vector<QRect> m_windows;
    std::optional<QPoint> m_start; ///< of the dragging, in pixels
    QPoint m_pointer; ///< in pixels
    bool m_isDone = false;
};

} // namespace tarvin::capture
