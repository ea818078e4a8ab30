#pragma once

#include "app/core/StudioEditing.h"
#include "studio/StudioCollaborators.h"
#include "studio/applications/view/ApplicationIcons.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace tarvin {

/// Makes what opens from the Studio, each with the model that it shows. Main thread only. What is still open goes with
/// this object, which goes before the shared objects and the platform.
class StudioViews
{
public:
    StudioViews(const Platform& platform, SharedObjects& objects);
    ~StudioViews();
    StudioViews(const StudioViews&) = delete;
    StudioViews& operator=(const StudioViews&) = delete;

    /// For the Studio's window, which may outlive this object but calls nothing of it then.
    [[nodiscard]] StudioSurfaces surfaces();

private:
    [[nodiscard]] QWidget* makeActionPicker(FKey key, StudioSurfaces::Close close);

    Platform m_platform;
    StudioEditing m_editing;
    ApplicationIcons m_icons;
    std::vector<QPointer<QWidget>> m_open; ///< the window owns them
};

} // namespace tarvin
