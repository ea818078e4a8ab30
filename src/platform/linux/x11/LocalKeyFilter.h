#pragma once

#include "platform/linux/x11/InputShared.h"
#include "platform/linux/x11/KeyEvents.h"
#include "platform/linux/x11/XTypes.h"
#include "platform/ports/InputTaps.h"

#include <QObject>

#include <array>
#include <bitset>
#include <optional>

class QKeyEvent;

namespace tarvin::x11 {

/// Watches the key events on their way to the program's own windows. Main thread only.
///
/// Qt asks about shortcuts before it sends the press itself, so the handler's verdict on a press is asked for at the
/// first of the two and holds for both.
///
/// A held key is told as one press, repeats and one release. The server is asked to send it like that. By itself it
/// sends a release before each repeat, and Qt knows such a release only by the press behind it, which on a busy machine
/// has not always been read by then: one stroke would look like many. Where the server refuses, Qt's word is taken, and
/// the releases in between are told to nobody and share the verdict on the press.
class LocalKeyFilter final : public QObject
{
public:
    LocalKeyFilter(InputShared& shared, InputTaps::LocalMonitorHandler handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] KeyMotion motionOfPress(const QKeyEvent& event, Keycode keycode);
    [[nodiscard]] EventVerdict judgeOverride(const QKeyEvent& event, Keycode keycode);
    [[nodiscard]] EventVerdict judgePress(const QKeyEvent& event, Keycode keycode);
    [[nodiscard]] EventVerdict judgeRelease(const QKeyEvent& event, Keycode keycode);
    [[nodiscard]] EventVerdict ask(const QKeyEvent& event, Keycode keycode, KeyMotion motion);
    [[nodiscard]] EventFlags flagsAfter(const QKeyEvent& event, Keycode keycode, KeyMotion motion) const;

    /// A press that the handler was asked about when Qt asked about shortcuts; the press itself may follow.
    struct AnnouncedPress
    {
        Keycode keycode = 0;
        ServerTime time = 0;
        EventVerdict verdict = EventVerdict::pass;
    };

    InputShared& m_shared;
    InputTaps::LocalMonitorHandler m_handler;
    std::optional<AnnouncedPress> m_announced;
    std::array<EventVerdict, keycodeCount> m_pressVerdicts{};
    std::bitset<keycodeCount> m_isDown; ///< as far as our windows have been told
};

} // namespace tarvin::x11
