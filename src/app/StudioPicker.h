#pragma once

#include "studio/StudioCollaborators.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace tarvin {

class ApplicationIcons;
class StudioEditing;
class UuidGenerator;

/// The pane of the Studio that edits a key, each time with a model of its own. Main thread only. Panes that are still
/// open go with this object.
class StudioPicker
{
public:
    /// All outlive this.
    StudioPicker(const StudioEditing& editing, ApplicationIcons& icons, UuidGenerator& uuids)
        : m_editing(editing)
        , m_icons(icons)
        , m_uuids(uuids)
    { }
    ~StudioPicker();
    StudioPicker(const StudioPicker&) = delete;
    StudioPicker& operator=(const StudioPicker&) = delete;

    /// Fills in what makes the pane; not to be called after this object has gone.
    void addTo(StudioSurfaces& surfaces);

private:
    /// A pane for that key, which belongs to whoever asked.
    [[nodiscard]] QWidget* makePane(FKey key, StudioSurfaces::Close close);

    const StudioEditing& m_editing;
    ApplicationIcons& m_icons;
    UuidGenerator& m_uuids;
    std::vector<QPointer<QWidget>> m_panes; ///< with those on their way out
};

} // namespace tarvin
