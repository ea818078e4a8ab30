#pragma once

#include "app/core/StudioEditing.h"
#include "studio/StudioCollaborators.h"
#include "studio/applications/view/ApplicationIcons.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace tarvin {

/// The pane of the Studio that edits a key, each time with a model of its own. Main thread only. Panes that are still
/// open go with this object.
class StudioPicker
{
public:
    /// @param platform, objects outlive this
    StudioPicker(const Platform& platform, SharedObjects& objects);
    ~StudioPicker();
    StudioPicker(const StudioPicker&) = delete;
    StudioPicker& operator=(const StudioPicker&) = delete;

    /// Fills in what makes the pane; not to be called after this object has gone.
    void addTo(StudioSurfaces& surfaces);
    /// A pane for that key, which belongs to whoever asked.
    /// @param close asks the owner to take the pane away
    [[nodiscard]] QWidget* makePane(FKey key, StudioSurfaces::Close close);

private:
    UuidGenerator& m_uuids;
    StudioEditing m_editing;
    ApplicationIcons m_icons;
    std::vector<QPointer<QWidget>> m_panes; ///< with those on their way out
};

} // namespace tarvin
