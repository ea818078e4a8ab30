#pragma once

#include "platform/linux/desktop/FocusSettler.h"
#include "platform/linux/desktop/InputFocus.h"
#include "platform/linux/desktop/QtAppWindow.h"

#include "platform/ports/AppShell.h"

#include <QObject>

#include <memory>
#include <vector>

namespace tarvin::desktop {

/// The application object on a Linux desktop.
///
/// The activation policy is the presence of the program's ordinary windows in the taskbar and the switcher. A key that
/// nobody takes makes no sound here and a minimise request meets no check, so those two wishes are granted from the
/// start. The program ends by `terminate`, and by whatever else ends it in good order: a termination signal (see
/// `TerminationSignals`), the session's end, the loss of the X server; the delegate hears of each, once.
class QtAppShell : public QObject, public AppShell
{
    Q_OBJECT

public:
    QtAppShell(Scheduler& scheduler, XConnection& connection);
    ~QtAppShell() override;

    void setDelegate(AppShellDelegate* delegate) override;
    [[nodiscard]] bool isActive() const override;
    void observeDidBecomeActive(std::function<void()> handler) override;
    [[nodiscard]] ActivationPolicy activationPolicy() const override { return m_policy; }
    void setActivationPolicy(ActivationPolicy policy) override;
    void activateAllWindows() override;
    void activateIgnoringOtherApps() override;
    [[nodiscard]] std::vector<AppWindow*> windows() override;
    [[nodiscard]] AppWindow* keyWindow() override { return m_keyWindow; }
    void silenceUnhandledKeys() override { }
    void letMinimizeRequestsThrough() override { }
    void terminate() override;

    /// Makes a top-level widget one of the program's windows. From now on it is never closed;
    /// the delegate is asked instead, or for a panel whoever listens to its window.
    /// @param widget outlives the shell
    QtAppWindow& addWindow(QWidget& widget, AppWindowKind kind);

    /// The program was started again. Reaches the delegate on a later turn, as soon as there is one.
    /// @param startupId of that start, empty if it had none; the window that comes up answers it
    void reopen(const QByteArray& startupId);
    /// Addresses came from outside, or with the first start. As above.
    void openUrls(const QStringList& urls, const QByteArray& startupId);

Q_SIGNALS:
    /// `isActive` changed. Sooner than the toolkit tells it, see `InputFocus`.
    void activeChanged(bool isActive);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void deliver(std::function<void(AppShellDelegate&)> message, const QByteArray& startupId);
    void deliverPending();
    void focusMoved(std::optional<WId> number);
    void focusSettled();
    void tellDelegateOfTheEnd();
    [[nodiscard]] QtAppWindow* windowWithNumber(WId number) const;
    static void lastChance();

    XConnection& m_connection;
    Scheduler& m_scheduler;
    AppShellDelegate* m_delegate = nullptr;
    std::vector<std::unique_ptr<QtAppWindow>> m_windows;
    std::vector<std::function<void()>> m_becameActiveHandlers;
    std::vector<std::function<void(AppShellDelegate&)>> m_pendingMessages; ///< came before there was a delegate
    ActivationPolicy m_policy = ActivationPolicy::regular;
    bool m_wasActive = false;
    bool m_hasEnded = false;
    InputFocus m_inputFocus;
    FocusSettler m_focus;
    QtAppWindow* m_wantedKeyWindow = nullptr; ///< asked for last to have the keyboard, and not hidden since
    QtAppWindow* m_keyWindow = nullptr; ///< the window of ours that had the keyboard last and was not hidden since
};

} // namespace tarvin::desktop
