#include "tools/panel/FadingPanel.h"

#include "platform/ports/AppShell.h"
#include "platform/ports/Scheduler.h"

#include <QPointer>

#include <utility>

namespace tarvin {

FadingPanel::FadingPanel(Collaborators collaborators, FadeTimes times)
    : m_with(std::move(collaborators))
    , m_times(times)
{ }

void FadingPanel::toggle()
{
    if (m_isVisible)
        hide();
    else
        show();
}

void FadingPanel::hide()
{
    if (!m_window || !m_isVisible)
        return;
    m_window->fadeTo(0, m_times.out);
    m_with.scheduler.postAfter(m_times.out, [panel = QPointer(this)] {
        if (!panel)
            return;
        panel->m_window->orderOut();
        panel->setVisible(false);
    });
}

FloatingPanel* FadingPanel::madeWindow()
{
    if (!m_window)
        m_window = m_with.makeWindow();
    return m_window.get();
}

void FadingPanel::present(FloatingPanel& window)
{
    window.setAlpha(0);
    window.makeKeyAndOrderFront();
    m_with.appShell.activateIgnoringOtherApps();
    window.fadeTo(1, m_times.in);
    setVisible(true);
}

void FadingPanel::setVisible(bool isVisible)
{
    if (std::exchange(m_isVisible, isVisible) != isVisible)
        Q_EMIT isVisibleChanged();
}

} // namespace tarvin
