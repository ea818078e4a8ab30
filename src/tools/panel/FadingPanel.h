#pragma once

#include "actions/seams/ToolPanel.h"
#include "platform/ports/FloatingPanel.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace tarvin {

class AppShell;
class Scheduler;

/// What the tool panels have in common: one window, made at the first showing and then kept, that fades in and out.
///
///   never shown   no window             left by `show`
///   shown         fading in or there    left by `hide`
///   fading out    still `isVisible`     left by the end of the fade; another `hide` fades again
///   hidden        window kept           left by `show`
///
/// Main thread only. What is scheduled here holds the panel weakly.
class FadingPanel : public QObject, public ToolPanel
{
    Q_OBJECT
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY isVisibleChanged)

public:
    struct FadeTimes
    {
        std::chrono::milliseconds in;
        std::chrono::milliseconds out;
    };
    struct Collaborators
    {
        MakeFloatingPanel makeWindow;
        AppShell& appShell;
        Scheduler& scheduler;
    };

    FadingPanel(Collaborators collaborators, FadeTimes times);

    /// True from the end of `show` until the fade of `hide` has ended.
    [[nodiscard]] bool isVisible() const override { return m_isVisible; }
    /// Null before the first showing.
    [[nodiscard]] FloatingPanel* window() const { return m_window.get(); }
    void toggle();
    /// Does nothing unless the panel is visible.
    void hide() override;

Q_SIGNALS:
    void isVisibleChanged();

protected:
    /// The window, made now if there is none yet; null where it cannot be made.
    [[nodiscard]] FloatingPanel* madeWindow();
    /// Brings the window to the front with the keyboard, from invisible, and the program with it.
    void present(FloatingPanel& window);

private:
    void setVisible(bool isVisible);

    Collaborators m_with;
    const FadeTimes m_times;
    std::unique_ptr<FloatingPanel> m_window;
    bool m_isVisible = false;
};

} // namespace tarvin
