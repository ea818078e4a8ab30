#pragma once

#include "platform/ports/FloatingPanel.h"

#include <QObject>

#include <functional>

namespace tarvin {
class PanelWindow;
}

namespace tarvin::desktop {
class QtAppShell;
class QtAppWindow;
class XConnection;
} // namespace tarvin::desktop

namespace tarvin::panels {

/// A drawn panel as a window of the program on an X desktop.
class QtFloatingPanel : public QObject, public FloatingPanel
{
    Q_OBJECT

public:
    /// @param view outlives the shell, which keeps every window
    QtFloatingPanel(
        PanelWindow& view, const PanelTraits& traits, desktop::QtAppShell& shell, desktop::XConnection& connection);

    [[nodiscard]] Rect frame() const override { return m_frame; }
    /// The plate of the view comes to lie in the middle of the frame; its shadow may reach beyond.
    void setFrame(const Rect& frame) override;
    void setAlpha(double alpha) override;
    void fadeTo(double alpha, std::chrono::milliseconds duration) override;
    void makeKeyAndOrderFront() override;
    void orderOut() override;

Q_SIGNALS:
    /// The window manager was told to close the panel, which stays as it is.
    void closeRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void prepareShowing();

    PanelWindow& m_view;
    const PanelTraits m_traits;
    desktop::XConnection& m_connection;
    desktop::QtAppWindow& m_window;
    Rect m_frame;
    /// Since it was shown last. Until then a loss of the keyboard is that of the panel before it, told late.
    bool m_hasHadKeyboard = false;
};

} // namespace tarvin::panels
