#pragma once

#include "platform/ports/Pasteboard.h"

#include <QString>

#include <chrono>
#include <deque>
#include <functional>

namespace tarvin {

class KeystrokeSynthesis;
class Scheduler;

/// Inserts a text by way of the clipboard and gives the clipboard its text back. Main thread only.
///
/// The old text may come late, from an application that is slow to hand it over. Until then nothing is pasted, and what
/// is to follow the paste waits with it, so that everything arrives in the order in which it was asked for.
class SnippetPaste
{
public:
    /// What an application needs to take the text from the clipboard.
    static constexpr std::chrono::milliseconds restoreDelay{600};

    SnippetPaste(Pasteboard& pasteboard, KeystrokeSynthesis& synthesis, Scheduler& scheduler);

    /// Pastes the text; afterwards the old text comes back, with its mark if it was secret. Where there was none, an
    /// image for instance, the new text stays.
    void pasteText(const QString& text);

    /// Runs the task once no paste waits for the old text; at once, as a rule.
    void whenPosted(std::function<void()> task);

private:
    void begin(const QString& text);
    void post(const QString& text, const std::optional<PasteboardText>& saved);

    Pasteboard& m_pasteboard;
    KeystrokeSynthesis& m_synthesis;
    Scheduler& m_scheduler;
    bool m_isReading = false;
    std::deque<std::function<void()>> m_waiting;
};

} // namespace tarvin
