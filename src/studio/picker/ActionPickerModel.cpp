#include "studio/picker/ActionPickerModel.h"

#include "interception/ActionSink.h"
#include "model/ActionSearch.h"
#include "platform/ports/Scheduler.h"
#include "studio/cards/CardHeader.h"

#include <algorithm>
#include <iterator>

namespace tarvin {

ActionPickerModel::ActionPickerModel(FKey key, Collaborators collaborators)
    : m_with(collaborators)
    , m_record(key, collaborators.profile)
{
    m_expanded.fill(true);
    const KeyProfile* const profile = &m_with.profile;
    connect(profile, &KeyProfile::profileMappingsChanged, this, &ActionPickerModel::changed);
    connect(profile, &KeyProfile::currentProfileChanged, this, &ActionPickerModel::changed);
    connect(profile, &KeyProfile::interceptionEnabledChanged, this, &ActionPickerModel::changed);
    connect(profile, &KeyProfile::functionKeysEnabledChanged, this, &ActionPickerModel::changed);
    connect(profile, &KeyProfile::otherKeysEnabledChanged, this, &ActionPickerModel::changed);
    const ActionUsageTracker* const usage = &m_with.usageTracker;
    connect(usage, &ActionUsageTracker::usageRecordsChanged, this, &ActionPickerModel::changed);
    connect(usage, &ActionUsageTracker::currentFilterChanged, this, &ActionPickerModel::changed);
}

std::optional<QStringView> ActionPickerModel::pausedChip() const
{
    return m_with.profile.isInterceptionActive(key()) ? std::nullopt : std::optional(pausedChipText(key()));
}

StatusBanner ActionPickerModel::banner() const
{
    const bool isCustom = m_with.profile.isCustomized(key());
    return statusBanner(isCustom ? std::optional(title(m_record.config().action)) : std::nullopt,
        m_with.profile.isInterceptionActive(key()));
}

void ActionPickerModel::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    Q_EMIT changed();
    Q_EMIT scrolledToTop();
}

bool ActionPickerModel::isSearching() const
{
    return !QStringView(m_searchText).trimmed().isEmpty();
}

QList<PickerRow> ActionPickerModel::searchResults() const
{
    const QList<ActionMatch> matches = searchActions(m_searchText);
    QList<PickerRow> found;
    found.reserve(matches.size());
    std::ranges::transform(
        matches, std::back_inserter(found), [](const ActionMatch& match) { return rowFor(match.action); });
    return found;
}

QStringView ActionPickerModel::sectionHeading(PickerSection section) const
{
    return heading(section, usageFilter());
}

QList<PickerRow> ActionPickerModel::rows(PickerSection section) const
{
    if (section != PickerSection::frequentlyUsed)
        return fixedRows(section);
    const QList<KeyAction> used = m_with.usageTracker.actions(usageFilter(), frequentlyUsedCount);
    QList<PickerRow> found;
    std::ranges::transform(used, std::back_inserter(found), rowFor);
    return found;
}

void ActionPickerModel::toggle(PickerSection section)
{
    m_expanded[indexOf(section)] = !m_expanded[indexOf(section)];
    Q_EMIT changed();
}

void ActionPickerModel::choose(const PickerRow& row)
{
    if (row.card)
        chooseCard(*row.card, m_record);
    else
        m_record.choose(row.action);
}

QString ActionPickerModel::testButtonText() const
{
    return m_testMessage.value_or(testActionText.toString());
}

void ActionPickerModel::test()
{
    m_with.executor.execute(m_record.config());
    m_testMessage = testDoneText.toString();
    Q_EMIT changed();
    m_with.scheduler.postAfter(testMessageDuration, [self = std::weak_ptr(m_self)] {
        if (const auto living = self.lock())
            (*living)->clearTestMessage();
    });
}

void ActionPickerModel::clearTestMessage()
{
    if (!m_testMessage)
        return;
    m_testMessage.reset();
    Q_EMIT changed();
}

void ActionPickerModel::reset()
{
    if (canReset())
        m_with.profile.resetToDefault(key());
}

} // namespace tarvin
