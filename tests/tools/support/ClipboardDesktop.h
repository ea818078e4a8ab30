#pragma once

#include "tools/clipboard/ClipboardHistoryManager.h"
#include "tools/support/ToolsDesktop.h"

#include <memory>

namespace tarvin::test {

/// The desktop with the clipboard history on it, made at its first use.
struct ClipboardDesktop : ToolsDesktop
{
    [[nodiscard]] ClipboardHistoryManager& history()
    {
        if (!m_history) {
            m_history = std::make_unique<ClipboardHistoryManager>(ClipboardHistoryManager::Collaborators{
                .pasteboard = pasteboard(),
                .preferences = ports.preferences,
                .workspace = ports.workspace,
                .poster = ports.eventPoster,
                .scheduler = ports.scheduler,
                .uuids = ports.uuids,
                .testEnvironment = testEnvironment,
                .log = log,
            });
        }
        return *m_history;
    }
    [[nodiscard]] bool isHistoryMade() const { return m_history != nullptr; }
    [[nodiscard]] simulated::SimulatedPasteboard& pasteboard() { return platform.pasteboard(); }
    /// Another application copies the text, and the history sees it at its next look.
    void copy(const QString& text)
    {
        pasteboard().copy({.text = text});
        advance(std::chrono::milliseconds(500));
    }
    [[nodiscard]] QStringList texts()
    {
        QStringList texts;
        for (const ClipboardItem& item : history().items())
            texts << item.text;
        return texts;
    }

private:
    std::unique_ptr<ClipboardHistoryManager> m_history;
};

} // namespace tarvin::test
