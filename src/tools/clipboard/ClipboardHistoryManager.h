#pragma once

#include "tools/clipboard/ClipboardItem.h"

#include "platform/ports/Workspace.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>

namespace tarvin {

class EventPoster;
class Pasteboard;
class Preferences;
class RuntimeLog;
class TestEnvironment;
class UuidGenerator;

/// Keeps the last 40 plain texts that passed through the clipboard, newest first, and pastes one of them again. Main
/// thread only.
///
/// It watches from its making, which is the first showing of its panel: what was copied before is not in it. Texts that
/// their source marks as secret are passed over.
class ClipboardHistoryManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<tarvin::ClipboardItem> items READ items NOTIFY itemsChanged)
    Q_PROPERTY(qint64 queueIndex READ queueIndex NOTIFY queueIndexChanged)

public:
    /// Where the items stand among the settings, as a list.
    static constexpr QStringView storageKey = u"Tarvin_ClipboardHistory_Items";
    static constexpr qsizetype mostItems = 40;

    struct Collaborators
    {
        Pasteboard& pasteboard;
        Preferences& preferences;
        Workspace& workspace;
        EventPoster& poster;
        Scheduler& scheduler;
        UuidGenerator& uuids;
        const TestEnvironment& testEnvironment;
        RuntimeLog& log;
    };

    /// Loads what is stored, takes what is on the clipboard now as seen, and starts to watch.
    explicit ClipboardHistoryManager(const Collaborators& collaborators);

    /// The newest first. Pinned ones have no place of their own and no protection at the end of the list.
    [[nodiscard]] const QList<ClipboardItem>& items() const { return m_items; }
    /// How often the queue has pasted; it never goes back.
    [[nodiscard]] std::int64_t queueIndex() const { return m_queueIndex; }
    /// The state of the clipboard that was seen or made last.
    [[nodiscard]] std::int64_t lastChangeCount() const { return m_lastChangeCount; }

    void startMonitoring();
    void stopMonitoring() { m_monitorTimer.reset(); }
    /// Captures the text on the clipboard if it is new. Where the owner of the clipboard takes its time, the item
    /// appears when the text is there; a very long text appears on a later turn.
    void checkForNewClips();
    /// Adds a text as if it had just been captured; also one that equals the newest.
    void addClipManually(const QString& text);
    void deleteClip(const ClipboardItem& item);
    /// Removes everything that is not pinned.
    void clearAllClips();
    void togglePin(const ClipboardItem& item);

    /// Puts the text on the clipboard, brings the application to the front and pastes there a moment later; without an
    /// application, into whichever is in front by then. The item keeps its place. In test-safe mode only the clipboard
    /// changes.
    void pasteItem(const ClipboardItem& item, std::optional<ProcessIdentifier> targetApp);
    /// Pastes the item at the place of the queue, which goes round from the newest to the oldest and again.
    void pasteNextInQueue(std::optional<ProcessIdentifier> targetApp);

Q_SIGNALS:
    void itemsChanged();
    void queueIndexChanged();

private:
    void capture(const QString& text);
    [[nodiscard]] ClipboardItem captured(const QString& text);
    void insertAtHead(const ClipboardItem& item);
    void loadHistory();
    void saveHistory();
    void simulateCommandV();

    Collaborators m_with;
    QList<ClipboardItem> m_items;
    QHash<QUuid, QJsonObject> m_stored; ///< what is stored of each item, so that a long text is converted once
    std::int64_t m_queueIndex = 0;
    std::int64_t m_lastChangeCount = 0;
    std::unique_ptr<Timer> m_monitorTimer;
};

} // namespace tarvin
