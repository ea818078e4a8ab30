#include "platform/linux/desktop/QtAppWindow.h"

#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/ToolkitWindow.h"

#include <QEvent>
#include <QGuiApplication>

#include <utility>

namespace tarvin::desktop {

QtAppWindow::QtAppWindow(QWidget& widget, AppWindowKind kind, XConnection& connection)
    : m_widget(widget)
    , m_kind(kind)
    , m_connection(connection)
{
    m_widget.installEventFilter(this);
}

QString QtAppWindow::title() const
{
    return m_widget.windowTitle();
}

bool QtAppWindow::isVisible() const
{
    return m_widget.isVisible() && !m_widget.isMinimized();
}

bool QtAppWindow::isMiniaturized() const
{
    return m_widget.isMinimized();
}

void QtAppWindow::setVisible()
{
    m_widget.setVisible(true);
}

void QtAppWindow::miniaturize()
{
    m_widget.setWindowState(m_widget.windowState() | Qt::WindowMinimized);
}

void QtAppWindow::deminiaturize()
{
    m_widget.setWindowState(m_widget.windowState() & ~Qt::WindowMinimized);
}

void QtAppWindow::makeKeyAndOrderFront()
{
    bringToFront(m_widget, m_connection, std::exchange(m_wishTime, std::nullopt));
    m_widget.setVisible(true);
    m_widget.raise();
    Q_EMIT keyWanted();
    xcb_connection_t* const sender = toolkitConnection();
    if (!sender || !m_connection.isConnected()) {
        m_widget.activateWindow();
        return;
    }
    // The toolkit would ask in the name of an ordinary program with the time of the last input that it saw, and
    // managers that guard the user's focus refuse that to a program that comes out of the background.
    const xcb_timestamp_t time = std::exchange(m_wishTime, std::nullopt).value_or(m_connection.serverTime());
    requestActivation(m_connection, sender, static_cast<xcb_window_t>(m_widget.winId()), time);
}

void QtAppWindow::orderFrontRegardless()
{
    m_widget.setVisible(true);
    m_widget.raise();
}

void QtAppWindow::orderOut()
{
    m_widget.setVisible(false);
}

bool QtAppWindow::hasNumber(WId number) const
{
    return m_widget.internalWinId() == number;
}

void QtAppWindow::setInTaskbar(bool isInTaskbar)
{
    m_isInTaskbar = isInTaskbar;
    if (m_widget.isVisible())
        applyTaskbarPresence(Moment::shown);
}

bool QtAppWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &m_widget)
        return false;
    switch (event->type()) {
    case QEvent::Close:
        event->ignore();
        Q_EMIT closeRequested();
        return true;
    case QEvent::Hide:
        if (!event->spontaneous())
            Q_EMIT hidden();
        return false;
    case QEvent::Show:
        // The widget's window exists by now and is mapped right after. Managers take the states off a window that is
        // hidden, and may do so late, when the next showing is under way already; so the wish is repeated afterwards.
        if (!event->spontaneous()) {
            applyTaskbarPresence(Moment::beforeShowing);
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (m_widget.isVisible())
                        applyTaskbarPresence(Moment::shown);
                },
                Qt::QueuedConnection);
        }
        return false;
    default:
        return false;
    }
}

void QtAppWindow::applyTaskbarPresence(Moment moment)
{
    xcb_connection_t* const sender = toolkitConnection();
    if (!sender || !m_connection.isConnected())
        return;
    const auto window = static_cast<xcb_window_t>(m_widget.winId());
    const TaskbarPresence presence = m_isInTaskbar ? TaskbarPresence::shown : TaskbarPresence::skipped;
    switch (moment) {
    case Moment::beforeShowing:
        prepareTaskbarPresence(m_connection, sender, window, presence);
        break;
    case Moment::shown:
        requestTaskbarPresence(m_connection, sender, window, presence);
        break;
    }
}

} // namespace tarvin::desktop
