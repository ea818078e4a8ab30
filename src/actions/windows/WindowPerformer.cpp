#include "actions/windows/WindowPerformer.h"

#include "actions/windows/FullScreenToggle.h"
#include "actions/windows/WindowMinimizing.h"
#include "actions/windows/WindowSnapping.h"

namespace tarvin {

WindowPerformer::WindowPerformer(WindowSnapping& snapping, WindowMinimizing& minimizing, FullScreenToggle& fullScreen)
    : m_snapping(snapping)
    , m_minimizing(minimizing)
    , m_fullScreen(fullScreen)
{ }

void WindowPerformer::snapFrontWindow(WindowSnapPosition position)
{
    m_snapping.snapFrontWindow(position);
}

void WindowPerformer::minimizeFrontWindow()
{
    m_minimizing.executeMinimizeWindow();
}

void WindowPerformer::toggleFrontWindowFullscreen()
{
    m_fullScreen.executeToggleFullscreen();
}

} // namespace tarvin
