#pragma once

#include "actions/usage/ActionUsageTracker.h"
#include "interception/ActionSink.h"
#include "profiles/ProfileDesktop.h"
#include "studio/picker/ActionPickerModel.h"
#include "support/QtPrinters.h"

#include <memory>
#include <vector>

namespace tarvin {

/// The picker for F5 on a simulated desktop, made at first use.
class PickerDesktop : public ProfileDesktop
{
protected:
    class Executor final : public ActionSink
    {
    public:
        void execute(const ConfiguredAction& config) override { performed.push_back(config); }
        std::vector<ConfiguredAction> performed;
    };

    ActionPickerModel& picker(FKey key = FKey::f5)
    {
        if (!m_picker) {
            m_picker = std::make_unique<ActionPickerModel>(key,
                ActionPickerModel::Collaborators{.profile = profile(),
                    .usageTracker = usage,
                    .executor = executor,
                    .scheduler = desktop.scheduler()});
        }
        return *m_picker;
    }

    /// The picker closes, and opens again at its next use.
    void closePicker() { m_picker.reset(); }

    [[nodiscard]] static QList<KeyAction> actionsOf(const QList<PickerRow>& rows)
    {
        QList<KeyAction> actions;
        for (const PickerRow& row : rows)
            actions.append(row.action);
        return actions;
    }

    [[nodiscard]] QList<KeyAction> find(const QString& text)
    {
        picker().setSearchText(text);
        return actionsOf(picker().searchResults());
    }

    ActionUsageTracker usage{desktop.files(), desktop.preferences(), desktop.console(), desktop.scheduler()};
    Executor executor;

private:
    std::unique_ptr<ActionPickerModel> m_picker;
};

} // namespace tarvin
