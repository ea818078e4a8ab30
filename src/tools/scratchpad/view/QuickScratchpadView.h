#pragma once

#include "tools/panel/view/ToolPlate.h"
#include "ui/AnimatedValue.h"

#include <functional>

class QPlainTextEdit;

namespace tarvin {

class ScratchpadNote;
class TextLabel;

/// The content of the scratchpad: the note, how long it is, and what can be done with it.
class QuickScratchpadView : public ToolPlate
{
    Q_OBJECT

public:
    /// @param note outlives the view
    QuickScratchpadView(ScratchpadNote& note, std::function<bool()> hasCompositor);

private:
    void showText();
    void showFeedback();
    void colourCopyButton();

    ScratchpadNote& m_note;
    QPlainTextEdit* m_editor;
    OutlinedButton* m_copy;
    AnimatedValue m_feedback; ///< 0 to 1, the colour of the copy button on its way to the confirmation
    TextLabel* m_counters;
};

} // namespace tarvin
