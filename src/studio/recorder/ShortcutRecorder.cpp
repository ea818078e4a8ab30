#include "studio/recorder/ShortcutRecorder.h"

#include "platform/ports/Scheduler.h"
#include "studio/recorder/KeyDisplay.h"
#include "studio/recorder/RecorderTexts.h"

#include <utility>

namespace tarvin {

namespace {

constexpr KeyCode firstModifierKeyCode = 54;
constexpr KeyCode lastModifierKeyCode = 62;

bool isLoneModifier(const PressedKey& key)
{
    return key.keyCode >= firstModifierKeyCode && key.keyCode <= lastModifierKeyCode && key.characters.isEmpty();
}

/// An event that names no key at all: the A key has the number 0, but it types something.
bool isNoKey(const PressedKey& key)
{
    constexpr EventFlags modifiers = EventFlags::shift | EventFlags::control | EventFlags::option | EventFlags::command;
    return !containsAny(key.flags, modifiers) && key.characters.isEmpty() && key.keyCode == 0;
}

} // namespace

ShortcutBinding ShortcutBinding::toOne(std::function<std::optional<CustomShortcut>()> shortcut,
    std::function<void(const std::optional<CustomShortcut>&)> setShortcut, std::function<void()> onSave)
{
    return {.shortcuts =
                [shortcut = std::move(shortcut)] {
                    const std::optional<CustomShortcut> one = shortcut();
                    return one ? QList<CustomShortcut>{*one} : QList<CustomShortcut>{};
                },
        .setShortcuts =
            [setShortcut = std::move(setShortcut)](const QList<CustomShortcut>& list) {
                setShortcut(list.isEmpty() ? std::nullopt : std::optional(list.first()));
            },
        .playbackMode = [] { return MultiKeyPlaybackMode::simultaneous; },
        .setPlaybackMode = [](MultiKeyPlaybackMode) {},
        .onSave = std::move(onSave)};
}

ShortcutRecorder::ShortcutRecorder(ShortcutBinding binding, Collaborators collaborators)
    : m_binding(std::move(binding))
    , m_with(std::move(collaborators))
{ }

std::optional<qsizetype> ShortcutRecorder::recordingTargetIndex() const
{
    return m_state == State::reRecording ? std::optional(m_targetIndex) : std::nullopt;
}

QStringView ShortcutRecorder::bannerText() const
{
    switch (m_state) {
    case State::idle:
        return {};
    case State::appendingOne:
        return u"Press key combo on keyboard...";
    case State::appendingSequence:
        return u"Press keys on keyboard sequentially...";
    case State::reRecording:
        return u"Press new key combo...";
    }
    return {};
}

QString ShortcutRecorder::testText() const
{
    return m_testFeedback ? *m_testFeedback : recorder_texts::test(playbackMode(), shortcuts().size());
}

void ShortcutRecorder::startRecording(State state, qsizetype index)
{
    endRecording();
    m_session = m_with.keyRecording.start(
        [this](const PressedKey& key) { return handleKey(key); }, [this] { stopRecording(); });
    m_isKeyboardRefused = !m_session;
    if (m_session) {
        m_state = state;
        m_targetIndex = index;
        ++m_recordingNumber;
    }
    Q_EMIT changed();
}

void ShortcutRecorder::endRecording()
{
    m_session.reset();
    m_state = State::idle;
    m_targetIndex = 0;
}

void ShortcutRecorder::stopRecording()
{
    const bool wasRecording = isRecording();
    endRecording();
    if (wasRecording)
        Q_EMIT changed();
}

RecordingVerdict ShortcutRecorder::handleKey(const PressedKey& key)
{
    if (isLoneModifier(key))
        return RecordingVerdict::swallow;
    if (isNoKey(key))
        return RecordingVerdict::handOn;
    accept(makeShortcut(key.flags, key.keyCode, formatKeyDisplay(key.characters.toUpper(), key.keyCode), m_with.uuids));
    return RecordingVerdict::swallow;
}

void ShortcutRecorder::accept(const CustomShortcut& shortcut)
{
    QList<CustomShortcut> list = shortcuts();
    switch (m_state) {
    case State::idle:
        return;
    case State::appendingOne:
        list.append(shortcut);
        m_binding.setShortcuts(list);
        endRecording();
        break;
    case State::appendingSequence:
        list.append(shortcut);
        m_binding.setShortcuts(list);
        break;
    case State::reRecording:
        if (m_targetIndex >= 0 && m_targetIndex < list.size()) {
            list[m_targetIndex] = shortcut;
            m_binding.setShortcuts(list);
        }
        endRecording();
        break;
    }
    save();
}

void ShortcutRecorder::remove(qsizetype index)
{
    QList<CustomShortcut> list = shortcuts();
    if (index >= 0 && index < list.size()) {
        list.removeAt(index);
        m_binding.setShortcuts(list);
    }
    save();
}

void ShortcutRecorder::clear()
{
    if (!offersClear())
        return;
    m_binding.setShortcuts({});
    save();
}

void ShortcutRecorder::apply(const ShortcutPreset& preset)
{
    m_binding.setShortcuts(shortcutsOf(preset, m_with.uuids));
    m_binding.setPlaybackMode(preset.mode);
    save();
}

void ShortcutRecorder::setPlaybackMode(MultiKeyPlaybackMode mode)
{
    m_binding.setPlaybackMode(mode);
    save();
}

void ShortcutRecorder::save()
{
    m_isKeyboardRefused = false;
    m_binding.onSave();
    Q_EMIT changed();
}

void ShortcutRecorder::test()
{
    const QList<CustomShortcut> list = shortcuts();
    m_with.play(list, playbackMode());
    m_testFeedback = recorder_texts::testFeedback(playbackMode(), list.size());
    Q_EMIT changed();
    m_with.scheduler.postAfter(testFeedbackDuration, [self = std::weak_ptr(m_self)] {
        if (const auto living = self.lock())
            (*living)->clearTestFeedback();
    });
}

void ShortcutRecorder::clearTestFeedback()
{
    if (!m_testFeedback)
        return;
    m_testFeedback.reset();
    Q_EMIT changed();
}

} // namespace tarvin
