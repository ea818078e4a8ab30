#include "platform/macos/shell/MacAppWindow.h"

#include "platform/macos/shell/NativeWindow.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace tarvin::macos {

MacAppWindow::MacAppWindow(QWidget& widget, AppWindowKind kind, std::function<void(MacAppWindow&)> onCloseRequested)
    : m_widget(widget)
    , m_kind(kind)
    , m_onCloseRequested(std::move(onCloseRequested))
{
    m_widget.installEventFilter(this);
}

MacAppWindow::~MacAppWindow()
{
    m_widget.removeEventFilter(this);
}

QString MacAppWindow::title() const
{
    return m_widget.windowTitle();
}

bool MacAppWindow::isVisible() const
{
    return nativeWindow(m_widget).visible;
}

bool MacAppWindow::isMiniaturized() const
{
    return nativeWindow(m_widget).miniaturized;
}

void MacAppWindow::setVisible()
{
    m_widget.setVisible(true);
}

void MacAppWindow::miniaturize()
{
    [nativeWindow(m_widget) miniaturize:nil];
}

void MacAppWindow::deminiaturize()
{
    [nativeWindow(m_widget) deminiaturize:nil];
}

void MacAppWindow::makeKeyAndOrderFront()
{
    m_widget.setVisible(true);
    [nativeWindow(m_widget) makeKeyAndOrderFront:nil];
}

void MacAppWindow::orderFrontRegardless()
{
    m_widget.setVisible(true);
    [nativeWindow(m_widget) orderFrontRegardless];
}

void MacAppWindow::orderOut()
{
    m_widget.setVisible(false);
}

bool MacAppWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &m_widget || event->type() != QEvent::Close)
        return false;
    event->ignore();
    if (m_onCloseRequested)
        m_onCloseRequested(*this);
    return true;
}

} // namespace tarvin::macos
