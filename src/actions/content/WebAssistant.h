#pragma once

#include <chrono>

namespace tarvin {

class KeystrokeSynthesis;
class Pasteboard;
class Scheduler;
class Workspace;

/// Hands the selection of the application in front to the web assistant. Main thread only.
class WebAssistant
{
public:
    /// What an application needs to put its selection on the clipboard.
    static constexpr std::chrono::milliseconds copyDelay{120};

    WebAssistant(KeystrokeSynthesis& synthesis, Pasteboard& pasteboard, Workspace& workspace, Scheduler& scheduler);

    /// Copies the selection and opens the page with it, or without a question if there is no text. The clipboard keeps
    /// the copy. A text that its source marks as secret is no question: with nothing selected, the clipboard may still
    /// hold a password.
    void triggerAIAssistant();

private:
    void ask();

    KeystrokeSynthesis& m_synthesis;
    Pasteboard& m_pasteboard;
    Workspace& m_workspace;
    Scheduler& m_scheduler;
};

} // namespace tarvin
