#pragma once

#include "model/ActionParameters.h"
#include "model/CustomShortcut.h"
#include "platform/ports/KeyRecording.h"
#include "studio/recorder/ShortcutPresets.h"

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace tarvin {

class Scheduler;

/// Where a recorder keeps what it edits. Everything must be callable.
struct ShortcutBinding
{
    std::function<QList<CustomShortcut>()> shortcuts;
    std::function<void(const QList<CustomShortcut>&)> setShortcuts;
    std::function<MultiKeyPlaybackMode()> playbackMode;
    std::function<void(MultiKeyPlaybackMode)> setPlaybackMode;
    std::function<void()> onSave; ///< called after each change

    /// For a place that holds one shortcut or none: it takes the first of the list, and the mode is fixed.
    [[nodiscard]] static ShortcutBinding toOne(std::function<std::optional<CustomShortcut>()> shortcut,
        std::function<void(const std::optional<CustomShortcut>&)> setShortcut, std::function<void()> onSave);
};

/// Records key combinations from real key presses and edits the list of them. Main thread only.
///
/// The recorder is
///
///     idle                 the keyboard is the desktop's
///     appendingOne         the next key goes to the end of the list and ends the recording
///     appendingSequence    every key goes to the end of the list, until the user is done
///     reRecording          the next key takes the place of one in the list and ends the recording
///
/// Any new recording first ends the one that runs; so does the end of this object, and the platform when it takes the
/// keyboard back.
class ShortcutRecorder : public QObject
{
    Q_OBJECT

public:
    enum class State : std::uint8_t { idle, appendingOne, appendingSequence, reRecording };

    static constexpr std::chrono::milliseconds testFeedbackDuration{1800};

    struct Collaborators
    {
        KeyRecording& keyRecording;
        UuidGenerator& uuids;
        Scheduler& scheduler;
        /// Plays shortcuts to the application that the user works in.
        std::function<void(const QList<CustomShortcut>&, MultiKeyPlaybackMode)> play;
    };

    ShortcutRecorder(ShortcutBinding binding, Collaborators collaborators);

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isRecording() const { return m_state != State::idle; }
    /// Tells one recording from another: counts those that were begun.
    [[nodiscard]] int recordingNumber() const { return m_recordingNumber; }
    [[nodiscard]] bool isSequenceRecordingMode() const { return m_state == State::appendingSequence; }
    /// The row that is being recorded anew.
    [[nodiscard]] std::optional<qsizetype> recordingTargetIndex() const;
    [[nodiscard]] QList<CustomShortcut> shortcuts() const { return m_binding.shortcuts(); }
    [[nodiscard]] MultiKeyPlaybackMode playbackMode() const { return m_binding.playbackMode(); }

    // What is there to be seen, from top to bottom.

    [[nodiscard]] bool showsPlaybackMode() const { return shortcuts().size() >= 2; }
    /// The words on the strip that shows while recording.
    [[nodiscard]] QStringView bannerText() const;
    /// Whether the last recording that the user wanted could not begin.
    [[nodiscard]] bool isKeyboardRefused() const { return m_isKeyboardRefused; }
    [[nodiscard]] bool offersSequence() const { return !isRecording(); }
    [[nodiscard]] bool offersClear() const { return !isRecording() && !shortcuts().isEmpty(); }
    [[nodiscard]] bool offersTest() const { return !isRecording() && !shortcuts().isEmpty(); }
    [[nodiscard]] QString testText() const;
    [[nodiscard]] bool hasTestFeedback() const { return m_testFeedback.has_value(); }

    // Where the keyboard can't be had these three leave the recorder idle.

    void recordOne() { startRecording(State::appendingOne, 0); }
    void recordSequence() { startRecording(State::appendingSequence, 0); }
    void reRecord(qsizetype index) { startRecording(State::reRecording, index); }
    /// "Done", and what the view does when it goes. Harmless while idle.
    void stopRecording();

    void remove(qsizetype index);
    void clear();
    /// The preset takes the place of the whole list.
    void apply(const ShortcutPreset& preset);
    void setPlaybackMode(MultiKeyPlaybackMode mode);
    /// Plays the list. The feedback goes 1.8 seconds after the first of several clicks.
    void test();

Q_SIGNALS:
    /// Anything shown may differ.
    void changed();

private:
    void startRecording(State state, qsizetype index);
    [[nodiscard]] RecordingVerdict handleKey(const PressedKey& key);
    void accept(const CustomShortcut& shortcut);
    void endRecording();
    void save();
    void clearTestFeedback();

    ShortcutBinding m_binding;
    Collaborators m_with;
    State m_state = State::idle;
    qsizetype m_targetIndex = 0; ///< of `reRecording`
    int m_recordingNumber = 0;
    std::unique_ptr<KeyRecordingSession> m_session;
    bool m_isKeyboardRefused = false;
    std::optional<QString> m_testFeedback;
    /// Held weakly by calls that are still to come.
    std::shared_ptr<ShortcutRecorder*> m_self = std::make_shared<ShortcutRecorder*>(this);
};

} // namespace tarvin
