#pragma once

#include "actions/usage/ActionUsageTracker.h"
#include "studio/cards/KeyRecord.h"
#include "studio/picker/PickerSection.h"
#include "studio/picker/PickerTexts.h"

#include <QObject>
#include <QString>

#include <array>
#include <chrono>
#include <memory>
#include <optional>

namespace tarvin {

class ActionSink;
class Scheduler;

/// What the action picker shows for one key, and what its controls do. Search, folded sections and the confirmation of
/// a test last as long as this object; everything else is the profile's. Main thread only.
class ActionPickerModel : public QObject
{
    Q_OBJECT

public:
    static constexpr int frequentlyUsedCount = 5;
    static constexpr std::chrono::milliseconds testMessageDuration{2000};

    struct Collaborators
    {
        KeyProfile& profile;
        ActionUsageTracker& usageTracker;
        ActionSink& executor;
        Scheduler& scheduler;
    };

    ActionPickerModel(FKey key, Collaborators collaborators);

    [[nodiscard]] FKey key() const { return m_record.key(); }
    [[nodiscard]] const KeyRecord& record() const { return m_record; }
    /// Present while a switch pauses the key.
    [[nodiscard]] std::optional<QStringView> pausedChip() const;
    [[nodiscard]] StatusBanner banner() const;

    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    /// A blank text is not a search.
    [[nodiscard]] bool isSearching() const;
    /// Best first; empty unless searching.
    [[nodiscard]] QList<PickerRow> searchResults() const;

    [[nodiscard]] QStringView sectionHeading(PickerSection section) const;
    /// All rows, whether or not the section is folded.
    [[nodiscard]] QList<PickerRow> rows(PickerSection section) const;
    [[nodiscard]] bool isExpanded(PickerSection section) const { return m_expanded[indexOf(section)]; }
    void toggle(PickerSection section);

    [[nodiscard]] ActionUsageFilter usageFilter() const { return m_with.usageTracker.currentFilter(); }
    void setUsageFilter(ActionUsageFilter filter) { m_with.usageTracker.setCurrentFilter(filter); }

    [[nodiscard]] bool isSelected(const PickerRow& row) const { return m_record.config().action == row.action; }
    /// At once and for good; choosing what is chosen already changes nothing.
    void choose(const PickerRow& row);

    /// The words on the test button.
    [[nodiscard]] QString testButtonText() const;
    [[nodiscard]] bool hasTestMessage() const { return m_testMessage.has_value(); }
    /// Runs the key's record now. The confirmation goes two seconds after the first of several clicks.
    void test();

    [[nodiscard]] bool canReset() const { return m_with.profile.isCustomized(key()); }
    /// Nothing for a key that is not customised.
    void reset();

Q_SIGNALS:
    /// Anything shown may differ.
    void changed();
    /// Another search begins at the top of the list.
    void scrolledToTop();

private:
    [[nodiscard]] static constexpr std::size_t indexOf(PickerSection section)
    {
        return static_cast<std::size_t>(section);
    }
    void clearTestMessage();

    Collaborators m_with;
    KeyRecord m_record;
    QString m_searchText;
    std::array<bool, allPickerSections.size()> m_expanded{};
    std::optional<QString> m_testMessage;
    /// Held weakly by calls that are still to come.
    std::shared_ptr<ActionPickerModel*> m_self = std::make_shared<ActionPickerModel*>(this);
};

} // namespace tarvin
