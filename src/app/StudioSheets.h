#pragma once

#include "app/core/StudioEditing.h"
#include "studio/StudioCollaborators.h"
#include "studio/applications/view/ApplicationIcons.h"

#include <QPointer>

namespace tarvin {

class Sheet;

/// The sheets of the Studio. A sheet that is up goes with this object.
class StudioSheets
{
public:
    /// @param platform, objects outlive this
    StudioSheets(const Platform& platform, SharedObjects& objects);
    ~StudioSheets();
    StudioSheets(const StudioSheets&) = delete;
    StudioSheets& operator=(const StudioSheets&) = delete;

    /// Fills in what opens the sheets; not to be called after this object has gone.
    void addTo(StudioSurfaces& surfaces);

private:
    void showSettings(QWidget& window);
    void showAddApplication(QWidget& window);

    StudioEditing m_editing;
    ApplicationIcons m_icons;
    QPointer<Sheet> m_sheet; ///< the window owns it
};

} // namespace tarvin
