#include "app/StudioSheets.h"

#include "app/core/StudioEditing.h"
#include "studio/applications/view/AddAppSheet.h"
#include "studio/settings/view/SettingsSheet.h"
#include "ui/Sheet.h"

#include <utility>

namespace tarvin {

StudioSheets::~StudioSheets()
{
    delete m_sheet;
}

void StudioSheets::addTo(StudioSurfaces& surfaces)
{
    surfaces.showSettings = [this](QWidget& window) { showSettings(window); };
    surfaces.showAddApplication = [this](QWidget& window) { showAddApplication(window); };
}

void StudioSheets::showSettings(QWidget& window)
{
    Sheet* const sheet = Sheet::present(
        window, [this](Sheet::Close close) { return new SettingsSheet(m_editing.settings(std::move(close))); });
    if (sheet)
        m_sheet = sheet;
}

void StudioSheets::showAddApplication(QWidget& window)
{
    Sheet* const sheet = Sheet::present(window,
        [this](Sheet::Close close) { return new AddAppSheet(m_editing.addApplication(std::move(close)), m_icons); });
    if (sheet)
        m_sheet = sheet;
}

} // namespace tarvin
