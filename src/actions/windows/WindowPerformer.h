#pragma once

#include "actions/seams/WindowActions.h"

namespace tarvin {

class FullScreenToggle;
class WindowMinimizing;
class WindowSnapping;

/// Brings the window actions to those who perform them.
class WindowPerformer final : public WindowActions
{
public:
    WindowPerformer(WindowSnapping& snapping, WindowMinimizing& minimizing, FullScreenToggle& fullScreen);

    void snapFrontWindow(WindowSnapPosition position) override;
    void minimizeFrontWindow() override;
    void toggleFrontWindowFullscreen() override;

private:
    WindowSnapping& m_snapping;
    WindowMinimizing& m_minimizing;
    FullScreenToggle& m_fullScreen;
};

} // namespace tarvin
