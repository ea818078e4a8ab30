#include "studio/applications/AddAppSheetModel.h"

#include "profiles/KeyProfile.h"
#include "studio/applications/ApplicationScan.h"

#include <utility>

namespace tarvin {

AddAppSheetModel::AddAppSheetModel(
    KeyProfile& profile, const ApplicationFolders& folders, Scheduler& scheduler, std::function<void()> close)
    : m_profile(profile)
    , m_list(scheduler, [&folders] { return applicationsForProfiles(folders); })
    , m_close(std::move(close))
{
    connect(&m_list, &ApplicationList::loaded, this, &AddAppSheetModel::changed);
    m_list.load();
}

void AddAppSheetModel::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    Q_EMIT changed();
}

bool AddAppSheetModel::isSearching() const
{
    return !QStringView(m_searchText).trimmed().isEmpty();
}

QString AddAppSheetModel::emptyDetail() const
{
    if (!isSearching())
        return {};
    return QStringLiteral("No installed apps match \"%1\"").arg(m_searchText.trimmed());
}

void AddAppSheetModel::choose(const InstalledApplication& application)
{
    m_profile.addAppProfile(application.name, application.bundleIdentifier, profileIcon.toString());
    m_close();
}

} // namespace tarvin
