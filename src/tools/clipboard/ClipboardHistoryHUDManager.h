#pragma once

#include "tools/clipboard/ClipboardItem.h"
#include "tools/panel/FadingPanel.h"

#include "platform/ports/Workspace.h"

#include <functional>
#include <optional>

namespace tarvin {

class ClipboardHistoryManager;
class Pointer;
class ProcessInfo;
class Screens;

/// The panel that lists the clipboard history near the pointer, and knows into which application to paste. Main thread
/// only.
class ClipboardHistoryHUDManager final : public FadingPanel
{
    Q_OBJECT

public:
    static constexpr PanelTraits traits{
        .size = {460, 480}, .spaces = PanelSpaces::all, .deactivation = PanelDeactivation::stays};

    /// The history, made at its first use.
    using History = std::function<ClipboardHistoryManager&()>;

    ClipboardHistoryHUDManager(Collaborators collaborators, History history, const Workspace& workspace,
        const ProcessInfo& processInfo, const Screens& screens, const Pointer& pointer);

    /// Remembers the application in front, brings the history up to date and opens the panel at the pointer, pushed in
    /// from the edges of the main screen. Without a main screen it opens where it was.
    void show() override;
    /// Closes the panel and pastes the item into the application that was in front.
    void pasteItem(const ClipboardItem& item);
    [[nodiscard]] ClipboardHistoryManager& history() { return m_history(); }
    /// The application that was in front at the last showing from another one; never forgotten.
    [[nodiscard]] const std::optional<RunningApplication>& previousFrontmostApp() const
    {
        return m_previousFrontmostApp;
    }

private:
    void rememberFrontmostApplication();

    History m_history;
    const Workspace& m_workspace;
    const ProcessInfo& m_processInfo;
    const Screens& m_screens;
    const Pointer& m_pointer;
    std::optional<RunningApplication> m_previousFrontmostApp;
};

/// Where the panel opens: around the pointer, with a margin to the edges of the visible part of the screen. Where it
/// has not room enough, its left and bottom margins are kept.
[[nodiscard]] Rect clipboardPanelFrame(const Rect& visibleFrame, Point pointer);

} // namespace tarvin
