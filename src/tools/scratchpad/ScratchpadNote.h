#pragma once

#include <QObject>
#include <QString>

namespace tarvin {

class Pasteboard;
class Preferences;
class Scheduler;

/// The one note, as its panel shows it. Every change of the text, for whatever reason, is stored at once. Main thread
/// only.
class ScratchpadNote : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool copiedFeedback READ copiedFeedback NOTIFY copiedFeedbackChanged)

public:
    /// Where the note stands among the settings, as a text; missing for an empty note.
    static constexpr QStringView storageKey = u"Tarvin_QuickScratchpadContent";

    ScratchpadNote(Preferences& preferences, Pasteboard& pasteboard, Scheduler& scheduler);

    [[nodiscard]] const QString& text() const { return m_text; }
    void setText(const QString& text);
    /// Takes the stored text, if there is one.
    void load();
    /// Empties the note, without asking and without a way back.
    void clear() { setText(QString()); }
    /// Puts the whole note on the clipboard, an empty one too, and confirms it for a moment. Each copying ends the
    /// confirmation after its own moment, also one that a later copying has begun.
    void copyAll();
    [[nodiscard]] bool copiedFeedback() const { return m_copiedFeedback; }

Q_SIGNALS:
    void textChanged();
    void copiedFeedbackChanged();

private:
    void setCopiedFeedback(bool isShown);

    Preferences& m_preferences;
    Pasteboard& m_pasteboard;
    Scheduler& m_scheduler;
    QString m_text;
    bool m_copiedFeedback = false;
};

/// How many lines a note has: none when it is empty, otherwise one more than it has line feeds.
[[nodiscard]] qsizetype noteLineCount(QStringView text);
/// "12 characters  •  3 lines".
[[nodiscard]] QString noteCounters(QStringView text);

} // namespace tarvin
