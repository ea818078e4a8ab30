#pragma once

#include "platform/linux/pasteboard/SelectionServer.h"

#include "platform/ports/Pasteboard.h"

#include <chrono>
#include <optional>

namespace tarvin::pasteboard {

using Clock = std::chrono::steady_clock;

/// One reading of the clipboard from the application that owns it, which may be slow, silent, dead or lying. It never
/// waits; it is told of events and of time.
///
///   asking for the targets    which forms the content has; an owner that cannot tell is asked for text all the same
///   asking for the hint       only where the content says that it may be secret
///   asking for the text
///   receiving increments      a long text comes in pieces
///   ended                     with a text or with nothing
///
/// Each reading has a window of its own, so that late answers to an old one find nobody.
class SelectionReader
{
public:
    /// Without a sign of the owner for so long, there is nothing to be had.
    static constexpr std::chrono::milliseconds silence{1000};
    /// However much of a life sign an owner gives, it must be through by then.
    static constexpr std::chrono::milliseconds longest{30000};
    /// No text is longer; an owner that goes on and on is cut off.
    static constexpr qsizetype mostBytes = qsizetype{1} << 29;

    SelectionReader(SelectionServer& server, Clock::time_point now);
    ~SelectionReader();
    SelectionReader(const SelectionReader&) = delete;
    SelectionReader& operator=(const SelectionReader&) = delete;

    void answered(const xcb_selection_notify_event_t& answer, Clock::time_point now);
    void propertyChanged(const xcb_property_notify_event_t& change, Clock::time_point now);
    /// When `timePassed` has to be called at the latest.
    [[nodiscard]] Clock::time_point deadline() const;
    void timePassed(Clock::time_point now);

    [[nodiscard]] bool hasEnded() const { return m_step == Step::ended; }
    /// What the reading has come to.
    [[nodiscard]] const std::optional<PasteboardText>& result() const { return m_result; }

private:
    enum class Step { targets, hint, text, increments, ended };

    void ask(Step step, SelectionAtom property, xcb_atom_t target);
    void askForText();
    void takeTargets(const PropertyValue& value);
    void takeText(const PropertyValue& value);
    void takePiece();
    void finish(xcb_atom_t type, const QByteArray& bytes);
    void end() { m_step = Step::ended; }

    SelectionServer& m_server;
    const xcb_window_t m_window;
    const Clock::time_point m_begin;
    Clock::time_point m_lastSign;
    Step m_step = Step::targets;
    xcb_atom_t m_asked = XCB_ATOM_NONE; ///< the target of the question that is open
    xcb_atom_t m_textTarget = XCB_ATOM_NONE;
    bool m_isSecret = false;
    xcb_atom_t m_typeOfPieces = XCB_ATOM_NONE;
    QByteArray m_pieces;
    std::optional<PasteboardText> m_result;
};

} // namespace tarvin::pasteboard
