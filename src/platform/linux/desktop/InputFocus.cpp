#include "platform/linux/desktop/InputFocus.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace tarvin::desktop {

InputFocus::InputFocus()
{
    if (QGuiApplication::platformName() == u"xcb") {
        qApp->installNativeEventFilter(this);
        return;
    }
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
        [this](QWindow* window) { Q_EMIT moved(window ? std::optional(window->winId()) : std::nullopt); });
}

InputFocus::~InputFocus()
{
    if (qApp)
        qApp->removeNativeEventFilter(this);
}

bool InputFocus::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & 0x7F;
    if (type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT)
        return false;
    const auto* focus = reinterpret_cast<const xcb_focus_in_event_t*>(event);
    // While a window manager holds the keyboard for its switcher the window keeps the focus; and a pointer that rests
    // in a window, or a focus that goes to a child of it, is no change.
    const bool isGrab = focus->mode == XCB_NOTIFY_MODE_GRAB || focus->mode == XCB_NOTIFY_MODE_UNGRAB;
    const bool isOfWindow = focus->detail == XCB_NOTIFY_DETAIL_ANCESTOR || focus->detail == XCB_NOTIFY_DETAIL_VIRTUAL
        || focus->detail == XCB_NOTIFY_DETAIL_NONLINEAR || focus->detail == XCB_NOTIFY_DETAIL_NONLINEAR_VIRTUAL;
    if (isGrab || !isOfWindow)
        return false;
    const WId window = focus->event;
    if (type == XCB_FOCUS_IN)
        m_window = window;
    else if (m_window == window)
        m_window.reset();
    Q_EMIT moved(m_window);
    return false;
}

} // namespace tarvin::desktop
