#include "platform/simulated/SimulatedWindow.h"

#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

SimulatedWindow::SimulatedWindow(
    EffectLog& log, const QString& title, WindowKind kind, std::function<void(SimulatedWindow&)> becameKey)
    : m_log(log)
    , m_title(title)
    , m_kind(kind)
    , m_becameKey(std::move(becameKey))
{
    m_log.record(WindowChanged{m_title, WindowStep::created});
}

void SimulatedWindow::setVisible()
{
    m_log.expectMainThread("AppWindow::setVisible");
    m_visible = true;
    m_log.record(WindowChanged{m_title, WindowStep::setVisible});
}

void SimulatedWindow::miniaturize()
{
    m_log.expectMainThread("AppWindow::miniaturize");
    m_miniaturized = true;
    m_log.record(WindowChanged{m_title, WindowStep::miniaturized});
}

void SimulatedWindow::deminiaturize()
{
    m_log.expectMainThread("AppWindow::deminiaturize");
    m_miniaturized = false;
    m_log.record(WindowChanged{m_title, WindowStep::deminiaturized});
}

void SimulatedWindow::makeKeyAndOrderFront()
{
    m_log.expectMainThread("AppWindow::makeKeyAndOrderFront");
    m_visible = true;
    m_log.record(WindowChanged{m_title, WindowStep::madeKeyAndFront});
    m_becameKey(*this);
}

void SimulatedWindow::orderFrontRegardless()
{
    m_log.expectMainThread("AppWindow::orderFrontRegardless");
    m_visible = true;
    m_log.record(WindowChanged{m_title, WindowStep::orderedFrontRegardless});
}

void SimulatedWindow::orderOut()
{
    m_log.expectMainThread("AppWindow::orderOut");
    m_visible = false;
    m_log.record(WindowChanged{m_title, WindowStep::orderedOut});
}

} // namespace tarvin::simulated
