#include "platform/linux/capture/AreaPicker.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace tarvin::capture {

namespace {

constexpr QColor shade(0, 0, 0, 96);
constexpr QColor rim(255, 255, 255, 220);

/// A click without a drag is no region.
constexpr int smallestRegion = 3;

} // namespace

AreaPicker::AreaPicker(QImage picture, std::vector<QRect> windows)
    // No manager places it or puts a frame on it.
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::X11BypassWindowManagerHint)
    , m_picture(std::move(picture))
    , m_windows(std::move(windows))
{
    setAccessibleName(choosesWindows() ? QStringLiteral("Choose a window") : QStringLiteral("Draw a region"));
    setCursor(choosesWindows() ? Qt::PointingHandCursor : Qt::CrossCursor);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void AreaPicker::begin()
{
    setGeometry(QGuiApplication::primaryScreen()->virtualGeometry());
    m_pointer = inPixels(mapFromGlobal(QCursor::pos()));
    show();
    // Nobody gives the keyboard to a window that no manager knows.
    grabKeyboard();
    grabMouse();
}

void AreaPicker::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(rect(), m_picture);
    painter.fillRect(rect(), shade);
    const QRect area = chosenArea();
    if (area.isEmpty())
        return;
    const double scale = pixelsPerPoint();
    const QRectF shown(area.x() / scale, area.y() / scale, area.width() / scale, area.height() / scale);
    painter.drawImage(shown, m_picture, area);
    painter.setPen(rim);
    painter.drawRect(shown);
}

void AreaPicker::mousePressEvent(QMouseEvent* event)
{
    m_pointer = inPixels(event->position());
    if (event->button() != Qt::LeftButton)
        finish(std::nullopt);
    else
        m_start = m_pointer;
    update();
}

void AreaPicker::mouseMoveEvent(QMouseEvent* event)
{
    m_pointer = inPixels(event->position());
    update();
}

void AreaPicker::mouseReleaseEvent(QMouseEvent* event)
{
    m_pointer = inPixels(event->position());
    if (event->button() != Qt::LeftButton || !m_start)
        return;
    const QRect area = chosenArea();
    m_start.reset();
    if (choosesWindows() ? area.isEmpty() : std::max(area.width(), area.height()) < smallestRegion)
        update();
    else
        finish(area);
}

void AreaPicker::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        finish(std::nullopt);
}

QRect AreaPicker::chosenArea() const
{
    if (choosesWindows()) {
        const auto window = std::find_if(
            m_windows.begin(), m_windows.end(), [this](const QRect& one) { return one.contains(m_pointer); });
        return window == m_windows.end() ? QRect() : window->intersected(m_picture.rect());
    }
    if (!m_start)
        return {};
    return QRect(*m_start, m_pointer).normalized().intersected(m_picture.rect());
}

QPoint AreaPicker::inPixels(const QPointF& point) const
{
    return (point * pixelsPerPoint()).toPoint();
}

double AreaPicker::pixelsPerPoint() const
{
    return width() > 0 ? static_cast<double>(m_picture.width()) / width() : 1;
}

void AreaPicker::finish(std::optional<QRect> area)
{
    if (m_isDone)
        return;
    m_isDone = true;
    releaseMouse();
    releaseKeyboard();
    hide();
    Q_EMIT done(area);
}

} // namespace tarvin::capture
