#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QWindow>

#include <optional>

namespace tarvin::desktop {

/// Watches which of the program's own windows has the keyboard, as the X server tells it. The toolkit's own word comes
/// 400 ms late when the focus goes to another program, since it waits whether another window of ours gets it.
///
/// On a session that is not X the toolkit's word is taken.
class InputFocus : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    InputFocus();
    ~InputFocus() override;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

Q_SIGNALS:
    /// @param window nothing when none of our windows has the keyboard, perhaps just for a moment
    void moved(std::optional<WId> window);

private:
    std::optional<WId> m_window;
};

} // namespace tarvin::desktop
