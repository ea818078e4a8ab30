#include "platform/linux/panels/QtFloatingPanel.h"

#include "platform/linux/desktop/QtAppShell.h"
#include "platform/linux/desktop/XConnection.h"
#include "ui/PanelWindow.h"

#include <QEvent>
#include <QGuiApplication>

#include <vector>

#include <xcb/xfixes.h>

namespace tarvin::panels {

using desktop::XAtom;

namespace {

/// The toolkit's own connection to the X server, null on another kind of session.
xcb_connection_t* toolkitConnection()
{
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

/// Managers keep a window with this in place of a desktop's number on all of them.
constexpr std::uint32_t allDesktops = 0xFFFFFFFF;

void putOnAllDesktops(const desktop::XConnection& connection, xcb_connection_t* sender, xcb_window_t window)
{
    xcb_change_property(sender, XCB_PROP_MODE_REPLACE, window, connection.atom(XAtom::netWmDesktop), XCB_ATOM_CARDINAL,
        32, 1, &allDesktops);
}

/// The pointer meets the plate alone; what is around it, shadow included, belongs to the windows behind.
void limitInput(xcb_connection_t* sender, xcb_window_t window, const QRegion& region, double scale)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& part : region) {
        const QRectF scaled(part.x() * scale, part.y() * scale, part.width() * scale, part.height() * scale);
        const QRect pixels = scaled.toRect();
        rectangles.push_back({.x = static_cast<std::int16_t>(pixels.x()),
            .y = static_cast<std::int16_t>(pixels.y()),
            .width = static_cast<std::uint16_t>(pixels.width()),
            .height = static_cast<std::uint16_t>(pixels.height())});
    }
    const xcb_xfixes_region_t shape = xcb_generate_id(sender);
    xcb_xfixes_create_region(sender, shape, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    xcb_xfixes_set_window_shape_region(sender, window, XCB_SHAPE_SK_INPUT, 0, 0, shape);
    xcb_xfixes_destroy_region(sender, shape);
}

} // namespace

QtFloatingPanel::QtFloatingPanel(
    PanelWindow& view, const PanelTraits& traits, desktop::QtAppShell& shell, desktop::XConnection& connection)
    : m_view(view)
    , m_traits(traits)
    , m_connection(connection)
    , m_window(shell.addWindow(view, desktop::AppWindowKind::panel))
    , m_frame{{}, traits.size}
{
    m_view.installEventFilter(this);
    connect(&m_window, &desktop::QtAppWindow::closeRequested, this, &QtFloatingPanel::closeRequested);
    if (m_traits.deactivation == PanelDeactivation::goesAway) {
        connect(&shell, &desktop::QtAppShell::activeChanged, this, [this](bool isActive) {
            if (!isActive && m_hasHadKeyboard)
                m_view.hide();
        });
    }
}

void QtFloatingPanel::setFrame(const Rect& frame)
{
    m_frame = frame;
    m_view.centrePlateIn(QRectF(frame.origin.x, frame.origin.y, frame.size.width, frame.size.height));
}

void QtFloatingPanel::setAlpha(double alpha)
{
    m_view.setWindowOpacity(alpha);
}

void QtFloatingPanel::fadeTo(double alpha, std::chrono::milliseconds duration)
{
    if (alpha > 0)
        m_view.fadeIn(duration);
    else
        m_view.fadeOut(duration);
}

void QtFloatingPanel::makeKeyAndOrderFront()
{
    m_window.makeKeyAndOrderFront();
}

void QtFloatingPanel::orderOut()
{
    m_window.orderOut();
}

bool QtFloatingPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &m_view)
        return false;
    // The window exists by now and is mapped right after; managers read from it how it wants to be shown.
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        m_hasHadKeyboard = false;
        prepareShowing();
    }
    if (event->type() == QEvent::WindowActivate)
        m_hasHadKeyboard = true;
    return false;
}

void QtFloatingPanel::prepareShowing()
{
    xcb_connection_t* const sender = toolkitConnection();
    if (!sender || !m_connection.isConnected())
        return;
    const auto window = static_cast<xcb_window_t>(m_view.winId());
    if (m_traits.spaces == PanelSpaces::all)
        putOnAllDesktops(m_connection, sender, window);
    limitInput(sender, window, m_view.plateRegion(), m_view.devicePixelRatioF());
}

} // namespace tarvin::panels
