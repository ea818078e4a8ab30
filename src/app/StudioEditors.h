#pragma once

#include "app/StudioPicker.h"
#include "app/StudioSheets.h"
#include "app/core/StudioEditing.h"
#include "studio/applications/view/ApplicationIcons.h"

namespace tarvin {

/// What opens from the Studio. What is open goes with this object.
class StudioEditors
{
public:
    /// @param platform, objects outlive this
    /// @param readIcon of applications
    StudioEditors(const Platform& platform, SharedObjects& objects, ApplicationIcons::Read readIcon);
    /// The same with the pictures that the platform's folders have.
    StudioEditors(const Platform& platform, SharedObjects& objects);

    /// Not to be called after this object has gone.
    [[nodiscard]] StudioSurfaces surfaces();

private:
    StudioEditing m_editing;
    ApplicationIcons m_icons;
    StudioPicker m_picker;
    StudioSheets m_sheets;
};

} // namespace tarvin
