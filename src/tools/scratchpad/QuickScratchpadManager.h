#pragma once

#include "tools/panel/FadingPanel.h"
#include "tools/scratchpad/ScratchpadNote.h"

namespace tarvin {

class Screens;

/// The floating note in the middle of the main screen. Main thread only.
class QuickScratchpadManager final : public FadingPanel
{
    Q_OBJECT

public:
    static constexpr PanelTraits traits{
        .size = {520, 380}, .spaces = PanelSpaces::all, .deactivation = PanelDeactivation::stays};

    QuickScratchpadManager(
        Collaborators collaborators, const Screens& screens, Preferences& preferences, Pasteboard& pasteboard);

    /// Opens the note above the middle of the main screen; where there is none, at the place where it was.
    void show() override;
    /// What the panel shows and edits.
    [[nodiscard]] ScratchpadNote& note() { return m_note; }

    /// The note as it is stored, past the one on the screen, which takes it over when it is shown next.
    [[nodiscard]] QString storedContent() const;
    void setStoredContent(const QString& text);
    void clear() { setStoredContent(QString()); }

private:
    const Screens& m_screens;
    Preferences& m_preferences;
    ScratchpadNote m_note;
};

/// Where the note opens: centred, and a little above the middle.
[[nodiscard]] Rect scratchpadFrame(const Rect& visibleFrame);

} // namespace tarvin
