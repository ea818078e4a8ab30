#include "tools/scratchpad/ScratchpadNote.h"

#include "model/TextLength.h"
#include "platform/ports/Pasteboard.h"
#include "platform/ports/Preferences.h"
#include "platform/ports/Scheduler.h"

#include <QJsonValue>
#include <QPointer>

#include <chrono>
#include <utility>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr auto confirmationTime = 1200ms;

} // namespace

ScratchpadNote::ScratchpadNote(Preferences& preferences, Pasteboard& pasteboard, Scheduler& scheduler)
    : m_preferences(preferences)
    , m_pasteboard(pasteboard)
    , m_scheduler(scheduler)
{ }

void ScratchpadNote::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_preferences.setValue(storageKey.toString(), m_text);
    Q_EMIT textChanged();
}

void ScratchpadNote::load()
{
    const QJsonValue stored = m_preferences.value(storageKey.toString());
    if (stored.isString())
        setText(stored.toString());
}

void ScratchpadNote::copyAll()
{
    m_pasteboard.setText({.text = m_text});
    setCopiedFeedback(true);
    m_scheduler.postAfter(confirmationTime, [note = QPointer(this)] {
        if (note)
            note->setCopiedFeedback(false);
    });
}

void ScratchpadNote::setCopiedFeedback(bool isShown)
{
    if (std::exchange(m_copiedFeedback, isShown) != isShown)
        Q_EMIT copiedFeedbackChanged();
}

qsizetype noteLineCount(QStringView text)
{
    return text.isEmpty() ? 0 : text.count(u'\n') + 1;
}

QString noteCounters(QStringView text)
{
    return u"%1 characters  •  %2 lines"_qs.arg(userPerceivedLength(text)).arg(noteLineCount(text));
}

} // namespace tarvin
