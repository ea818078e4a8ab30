#pragma once

#include "studio/StudioCollaborators.h"

#include <QPointer>

namespace tarvin {

class ApplicationIcons;
class Sheet;
class StudioEditing;

/// The sheets of the Studio. A sheet that is up goes with this object.
class StudioSheets
{
public:
    /// Both outlive this.
    StudioSheets(const StudioEditing& editing, ApplicationIcons& icons)
        : m_editing(editing)
        , m_icons(icons)
    { }
    ~StudioSheets();
    StudioSheets(const StudioSheets&) = delete;
    StudioSheets& operator=(const StudioSheets&) = delete;

    /// Fills in what opens the sheets; not to be called after this object has gone.
    void addTo(StudioSurfaces& surfaces);

private:
    void showSettings(QWidget& window);
    void showAddApplication(QWidget& window);

    const StudioEditing& m_editing;
    ApplicationIcons& m_icons;
    QPointer<Sheet> m_sheet; ///< the window owns it
};

} // namespace tarvin
