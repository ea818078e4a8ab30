#pragma once

#include "platform/ports/Platform.h"
#include "studio/applications/AddAppSheetModel.h"
#include "studio/cards/OpenApplicationCard.h"
#include "studio/picker/ActionPickerModel.h"
#include "studio/recorder/ShortcutRecorder.h"
#include "studio/settings/SettingsSheetModel.h"

#include <functional>
#include <memory>

namespace tarvin {

class SharedObjects;

/// What one presentation of the action picker shows and does, its cards included. Lives as long as the picker is open;
/// a recording under way ends with it.
struct KeyEditing
{
    ActionPickerModel picker;
    OpenApplicationCard openApplication; ///< loads its list when it is first shown
    ShortcutRecorder recorder;
};

/// Makes what the views of the Studio edit with. Main thread only; everything made here is gone before this object, the
/// shared objects and the platform.
class StudioEditing
{
public:
    StudioEditing(const Platform& platform, SharedObjects& objects);

    [[nodiscard]] std::unique_ptr<KeyEditing> editKey(FKey key) const;
    /// @param close asks the owner to take the sheet away
    [[nodiscard]] std::unique_ptr<AddAppSheetModel> addApplication(std::function<void()> close) const;
    [[nodiscard]] std::unique_ptr<SettingsSheetModel> settings(std::function<void()> close) const;

private:
    Platform m_platform;
    SharedObjects& m_objects;
};

} // namespace tarvin
