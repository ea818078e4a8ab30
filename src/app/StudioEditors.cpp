#include "app/StudioEditors.h"

#include "studio/applications/view/ApplicationPictures.h"

#include <utility>

namespace tarvin {

StudioEditors::StudioEditors(const Platform& platform, SharedObjects& objects, ApplicationIcons::Read readIcon)
    : m_editing(platform, objects)
    , m_icons(platform.scheduler, std::move(readIcon))
    , m_picker(m_editing, m_icons, platform.uuids)
    , m_sheets(m_editing, m_icons)
{ }

StudioEditors::StudioEditors(const Platform& platform, SharedObjects& objects)
    : StudioEditors(platform, objects, picturesOf(platform.applicationFolders))
{ }

StudioSurfaces StudioEditors::surfaces()
{
    StudioSurfaces surfaces;
    m_picker.addTo(surfaces);
    m_sheets.addTo(surfaces);
    return surfaces;
}

} // namespace tarvin
