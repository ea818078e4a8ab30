#pragma once

#include "studio/recorder/ShortcutRecorder.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace tarvin {

class ConfirmButton;
class KeyRow;
class OutlinedButton;
class PlaybackModeSelector;
class RecordingBanner;
class SpringColumn;
class TextBlock;

/// Shows the recorded keys and records others. A recording that was begun here ends when the view disappears.
class ShortcutRecorderView : public QWidget
{
    Q_OBJECT

public:
    explicit ShortcutRecorderView(ShortcutRecorder& recorder, QWidget* parent = nullptr);
    ~ShortcutRecorderView() override;

    /// Shows what the recorder has now; the recorder itself tells of its own changes only.
    void refresh();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void record(ShortcutRecorder::State state, qsizetype index);
    void endOwnRecording();
    void refreshRows();
    void refreshActions();
    void refreshRefusal();
    [[nodiscard]] KeyRow& rowAt(std::size_t index);

    /// An owner may let the recorder go first.
    QPointer<ShortcutRecorder> m_recorder;
    int m_ownRecording = 0; ///< the number of the last that was begun here
    SpringColumn* m_column;
    PlaybackModeSelector* m_mode;
    std::vector<KeyRow*> m_rows; ///< those beyond the keys are hidden
    RecordingBanner* m_banner;
    OutlinedButton* m_add;
    OutlinedButton* m_sequence;
    OutlinedButton* m_clear;
    TextBlock* m_refusal; ///< of the keyboard
    ConfirmButton* m_test;
};

} // namespace tarvin
