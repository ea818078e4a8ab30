#pragma once

#include "platform/ports/AppShell.h"

#include <QObject>

#include <functional>

class QWidget;

namespace tarvin::macos {

enum class AppWindowKind {
    ordinary, ///< the Studio
    panel, ///< a floating tool
};

/// One top-level widget as a window of the program. Whether it is shown goes by the toolkit, so that it paints what is
/// shown; its order and its keyboard go by the system. Made by the shell; the widget outlives it. Main thread only.
class MacAppWindow final : public QObject, public AppWindow
{
public:
    /// @param onCloseRequested the user asks to close the window, which stays as it is
    MacAppWindow(QWidget& widget, AppWindowKind kind, std::function<void(MacAppWindow&)> onCloseRequested);
    ~MacAppWindow() override;
    Q_DISABLE_COPY_MOVE(MacAppWindow)

    [[nodiscard]] QString title() const override;
    [[nodiscard]] bool isPanel() const override { return m_kind == AppWindowKind::panel; }
    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] bool isMiniaturized() const override;
    void setVisible() override;
    void miniaturize() override;
    void deminiaturize() override;
    void makeKeyAndOrderFront() override;
    void orderFrontRegardless() override;
    void orderOut() override;

    [[nodiscard]] QWidget& widget() const { return m_widget; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_widget;
    const AppWindowKind m_kind;
    const std::function<void(MacAppWindow&)> m_onCloseRequested;
};

} // namespace tarvin::macos
