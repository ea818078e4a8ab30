#pragma once

#include "platform/ports/AppShell.h"

#include <QObject>
#include <QWidget>

#include <optional>

namespace tarvin::desktop {

class XConnection;

enum class AppWindowKind {
    ordinary, ///< the Studio
    panel, ///< a floating tool; never in the taskbar
};

/// One top-level widget as a window of the program. Made by the shell; the widget outlives it.
class QtAppWindow : public QObject, public AppWindow
{
    Q_OBJECT

public:
    QtAppWindow(QWidget& widget, AppWindowKind kind, XConnection& connection);

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

    /// Whether this is the window with that number of the server.
    [[nodiscard]] bool hasNumber(WId number) const;
    /// Whether the taskbar and the switcher show the window, now and each time it is shown again.
    void setInTaskbar(bool isInTaskbar);
    /// The time of the user's deed that the next raising answers; without it the present time counts.
    void setWishTime(std::optional<std::uint32_t> time) { m_wishTime = time; }

Q_SIGNALS:
    /// The user asks to close the window, which stays as it is.
    void closeRequested();
    /// The program wants the window to have the keyboard.
    void keyWanted();
    void hidden();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Moment { beforeShowing, shown };
    void applyTaskbarPresence(Moment moment);

    QWidget& m_widget;
    const AppWindowKind m_kind;
    XConnection& m_connection;
    bool m_isInTaskbar = true;
    std::optional<std::uint32_t> m_wishTime;
};

} // namespace tarvin::desktop
