#include "platform/linux/desktop/ToolkitWindow.h"

#include "platform/linux/desktop/Ewmh.h"

#include <QGuiApplication>
#include <QWidget>

namespace tarvin::desktop {

xcb_connection_t* toolkitConnection()
{
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

void bringToFront(QWidget& window, XConnection& connection, std::optional<xcb_timestamp_t> wishTime)
{
    window.setVisible(true);
    window.raise();
    xcb_connection_t* const sender = toolkitConnection();
    if (!sender || !connection.isConnected()) {
        window.activateWindow();
        return;
    }
    // The toolkit would ask in the name of an ordinary program with the time of the last input that it saw, and
    // managers that guard the user's focus refuse that to a program that comes out of the background.
    const xcb_timestamp_t time = wishTime ? *wishTime : connection.serverTime();
    requestActivation(connection, sender, static_cast<xcb_window_t>(window.winId()), time);
}

} // namespace tarvin::desktop
