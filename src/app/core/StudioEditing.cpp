#include "app/core/StudioEditing.h"

#include "actions/ActionExecutor.h"
#include "actions/KeystrokeSynthesis.h"
#include "app/core/SharedObjects.h"
#include "interception/FnKeyModeHelper.h"
#include "shell/BackgroundModeManager.h"
#include "studio/cards/KeyboardShortcutCard.h"

#include <utility>

namespace tarvin {

StudioEditing::StudioEditing(const Platform& platform, SharedObjects& objects)
    : m_platform(platform)
    , m_objects(objects)
{ }

std::unique_ptr<KeyEditing> StudioEditing::editKey(FKey key) const
{
    KeyProfile& profile = m_objects.keyProfile();
    const KeyRecord record(key, profile);
    KeystrokeSynthesis& synthesis = m_objects.keystrokeSynthesis();
    // In place: none of the three can be moved. NOLINTNEXTLINE(modernize-make-unique)
    return std::unique_ptr<KeyEditing>(new KeyEditing{.picker = ActionPickerModel(key,
                                                          {.profile = profile,
                                                              .usageTracker = m_objects.actionUsageTracker(),
                                                              .executor = m_objects.actionExecutor(),
                                                              .scheduler = m_platform.scheduler}),
        .openApplication = OpenApplicationCard(record,
            {.folders = m_platform.applicationFolders,
                .applications = m_platform.applicationControl,
                .chooser = m_platform.applicationChooser,
                .scheduler = m_platform.scheduler}),
        .recorder = ShortcutRecorder(shortcutBinding(record),
            {.keyRecording = m_platform.keyRecording,
                .uuids = m_platform.uuids,
                .scheduler = m_platform.scheduler,
                .play = [&synthesis](const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode mode) {
                    synthesis.executeMultiKeyShortcuts(shortcuts, mode);
                }})});
}

std::unique_ptr<AddAppSheetModel> StudioEditing::addApplication(std::function<void()> close) const
{
    return std::make_unique<AddAppSheetModel>(
        m_objects.keyProfile(), m_platform.applicationFolders, m_platform.scheduler, std::move(close));
}

std::unique_ptr<SettingsSheetModel> StudioEditing::settings(std::function<void()> close) const
{
    return std::make_unique<SettingsSheetModel>(
        SettingsSheetModel::Collaborators{.background = m_objects.backgroundModeManager(),
            .profile = m_objects.keyProfile(),
            .functionKeyMode = m_objects.fnKeyModeHelper(),
            .close = std::move(close)});
}

} // namespace tarvin
