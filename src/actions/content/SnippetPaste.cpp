#include "actions/content/SnippetPaste.h"

#include "actions/KeystrokeSynthesis.h"
#include "platform/ports/Scheduler.h"

#include <utility>

namespace tarvin {

namespace {

constexpr KeyCode pasteKey = 9;

} // namespace

SnippetPaste::SnippetPaste(Pasteboard& pasteboard, KeystrokeSynthesis& synthesis, Scheduler& scheduler)
    : m_pasteboard(pasteboard)
    , m_synthesis(synthesis)
    , m_scheduler(scheduler)
{ }

void SnippetPaste::pasteText(const QString& text)
{
    whenPosted([this, text] { begin(text); });
}

void SnippetPaste::whenPosted(std::function<void()> task)
{
    if (m_isReading)
        m_waiting.push_back(std::move(task));
    else
        task();
}

void SnippetPaste::begin(const QString& text)
{
    m_isReading = true;
    m_pasteboard.readText([this, text](const std::optional<PasteboardText>& saved) { post(text, saved); });
}

void SnippetPaste::post(const QString& text, const std::optional<PasteboardText>& saved)
{
    m_pasteboard.setText({.text = text});
    m_synthesis.simulateKeyStroke(pasteKey, EventFlags::command, KeystrokeOrigin::builtIn);
    if (saved) {
        m_scheduler.postAfter(
            restoreDelay, [&pasteboard = m_pasteboard, saved = *saved] { pasteboard.setText(saved); });
    }
    m_isReading = false;
    // A task may paste itself; what waits behind it then goes on waiting.
    while (!m_isReading && !m_waiting.empty()) {
        const std::function<void()> task = std::move(m_waiting.front());
        m_waiting.pop_front();
        task();
    }
}

} // namespace tarvin
