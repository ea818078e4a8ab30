#include "tools/clipboard/ClipboardHistoryManager.h"

#include "actions/TestEnvironment.h"
#include "interception/RuntimeLog.h"
#include "model/CanonicalEquivalence.h"
#include "platform/ports/EventPoster.h"
#include "platform/ports/Pasteboard.h"
#include "platform/ports/Preferences.h"
#include "platform/ports/UuidGenerator.h"
#include "tools/clipboard/ClipboardItemJson.h"

#include <QJsonArray>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr auto pollInterval = 500ms;
/// What an application that comes to the front gets before the keystroke.
constexpr auto pasteDelay = 120ms;
constexpr KeyCode keyCodeOfV = 9;
/// From here on the stored form of a text is made off the main thread, which it would hold up.
constexpr qsizetype longText = 1'000'000;

} // namespace

ClipboardHistoryManager::ClipboardHistoryManager(const Collaborators& collaborators)
    : m_with(collaborators)
{
    loadHistory();
    m_lastChangeCount = m_with.pasteboard.changeCount();
    startMonitoring();
}

void ClipboardHistoryManager::startMonitoring()
{
    m_monitorTimer = m_with.scheduler.startRepeating(pollInterval, [this] { checkForNewClips(); });
}

void ClipboardHistoryManager::checkForNewClips()
{
    const std::int64_t changeCount = m_with.pasteboard.changeCount();
    if (changeCount == m_lastChangeCount)
        return;
    m_lastChangeCount = changeCount;
    m_with.pasteboard.readText([manager = QPointer(this)](const std::optional<PasteboardText>& content) {
        if (manager && content && !content->isSecret)
            manager->capture(content->text);
    });
}

void ClipboardHistoryManager::capture(const QString& text)
{
    if (!hasVisibleText(text) || (!m_items.isEmpty() && areCanonicallyEquivalent(m_items.first().text, text)))
        return;
    const ClipboardItem item = captured(text);
    if (text.size() < longText) {
        insertAtHead(item);
        return;
    }
    m_with.scheduler.runInBackground(
        BackgroundQueue::utility, [&scheduler = m_with.scheduler, manager = QPointer(this), item] {
            scheduler.post([manager, item, stored = toJson(item)] {
                if (!manager)
                    return;
                manager->m_stored.insert(item.id, stored);
                manager->insertAtHead(item);
            });
        });
}

void ClipboardHistoryManager::addClipManually(const QString& text)
{
    if (hasVisibleText(text))
        insertAtHead(captured(text));
}

ClipboardItem ClipboardHistoryManager::captured(const QString& text)
{
    return {.id = m_with.uuids.next(), .text = text, .timestamp = m_with.scheduler.now()};
}

void ClipboardHistoryManager::insertAtHead(const ClipboardItem& item)
{
    m_items.removeIf([&item](const ClipboardItem& older) {
        return !older.isPinned && areCanonicallyEquivalent(older.text, item.text);
    });
    m_items.prepend(item);
    if (m_items.size() > mostItems)
        m_items.resize(mostItems);
    saveHistory();
}

void ClipboardHistoryManager::deleteClip(const ClipboardItem& item)
{
    m_items.removeIf([&item](const ClipboardItem& candidate) { return candidate.id == item.id; });
    saveHistory();
}

void ClipboardHistoryManager::clearAllClips()
{
    m_items.removeIf([](const ClipboardItem& item) { return !item.isPinned; });
    saveHistory();
}

void ClipboardHistoryManager::togglePin(const ClipboardItem& item)
{
    const auto found = std::ranges::find(m_items, item.id, &ClipboardItem::id);
    if (found == m_items.end())
        return;
    found->isPinned = !found->isPinned;
    saveHistory();
}

void ClipboardHistoryManager::pasteItem(const ClipboardItem& item, std::optional<ProcessIdentifier> targetApp)
{
    m_with.pasteboard.setText({.text = item.text});
    m_lastChangeCount = m_with.pasteboard.changeCount();
    if (m_with.testEnvironment.isRunningInTestEnvironment())
        return;
    if (targetApp)
        m_with.workspace.activate(*targetApp);
    m_with.scheduler.postAfter(pasteDelay, [manager = QPointer(this)] {
        if (manager)
            manager->simulateCommandV();
    });
}

void ClipboardHistoryManager::pasteNextInQueue(std::optional<ProcessIdentifier> targetApp)
{
    if (m_items.isEmpty())
        return;
    const ClipboardItem item = m_items[m_queueIndex % m_items.size()];
    ++m_queueIndex;
    Q_EMIT queueIndexChanged();
    pasteItem(item, targetApp);
}

void ClipboardHistoryManager::loadHistory()
{
    const QJsonValue stored = m_with.preferences.value(storageKey.toString());
    if (stored.isUndefined())
        return;
    auto items = clipboardItemsFromJson(stored);
    if (const auto* error = std::get_if<ClipboardItemsError>(&items))
        m_with.log.log(u"[Tarvin] Failed to load clipboard history: "_qs + error->text);
    else
        m_items = std::get<QList<ClipboardItem>>(std::move(items));
}

/// Every item has a JSON form, so nothing can fail here; what the store cannot write, it reports itself.
void ClipboardHistoryManager::saveHistory()
{
    QHash<QUuid, QJsonObject> stored;
    QJsonArray array;
    for (const ClipboardItem& item : std::as_const(m_items)) {
        QJsonObject json = m_stored.take(item.id);
        if (json.value(u"isPinned") != QJsonValue(item.isPinned))
            json = toJson(item);
        array.append(json);
        stored.insert(item.id, json);
    }
    m_stored = std::move(stored);
    m_with.preferences.setValue(storageKey.toString(), array);
    Q_EMIT itemsChanged();
}

void ClipboardHistoryManager::simulateCommandV()
{
    if (m_with.testEnvironment.isRunningInTestEnvironment() || !m_with.poster.canMakeKey(keyCodeOfV))
        return;
    for (const KeyState state : {KeyState::down, KeyState::up}) {
        m_with.poster.postKey({.keyCode = keyCodeOfV,
                                  .state = state,
                                  .flags = EventFlags::command,
                                  .userData = selfPostedMarker,
                                  .origin = KeystrokeOrigin::builtIn},
            TapLocation::hid);
    }
}

} // namespace tarvin
