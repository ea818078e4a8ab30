#include "studio/cards/OpenApplicationCard.h"

#include "model/OptionalText.h"
#include "platform/ports/ApplicationControl.h"
#include "studio/applications/ApplicationScan.h"

#include <algorithm>

namespace tarvin {

OpenApplicationCard::OpenApplicationCard(const KeyRecord& record, Collaborators collaborators)
    : m_record(record)
    , m_with(collaborators)
    , m_list(m_with.scheduler, [&folders = m_with.folders] { return applicationsToOpen(folders); })
{
    connect(&m_list, &ApplicationList::loaded, this, &OpenApplicationCard::changed);
}

bool OpenApplicationCard::hasApplication() const
{
    const ConfiguredAction config = m_record.config();
    return hasText(config.customAppName) || hasText(config.customAppBundleId) || hasText(config.customAppPath);
}

QString OpenApplicationCard::applicationName() const
{
    return m_record.config().customAppName.value_or(QString());
}

std::optional<QString> OpenApplicationCard::resolvedAppPath() const
{
    const ConfiguredAction config = m_record.config();
    if (config.customAppPath && m_with.applications.exists(*config.customAppPath))
        return config.customAppPath;
    return config.customAppBundleId ? m_with.applications.pathOfApplication(*config.customAppBundleId) : std::nullopt;
}

QString OpenApplicationCard::resolvedAppIcon() const
{
    const std::optional<QString> path = resolvedAppPath();
    if (!path)
        return {};
    const QList<InstalledApplication>& installed = m_list.search().applications();
    const auto known = std::ranges::find(installed, *path, &InstalledApplication::path);
    if (known != installed.end())
        return known->icon;
    const std::optional<ApplicationBundle> bundle = m_with.folders.bundleAt(*path);
    return bundle ? bundle->icon : QString();
}

QString OpenApplicationCard::pressHint() const
{
    const QString name = m_record.config().customAppName.value_or(QStringLiteral("your application"));
    return QStringLiteral("Press %1 on your keyboard to instantly launch or switch to %2")
        .arg(displayName(m_record.key()), name);
}

QStringView OpenApplicationCard::changeSymbol() const
{
    return m_isPickerPresented ? QStringView(u"chevron.up") : QStringView(u"arrow.triangle.2.circlepath");
}

QString OpenApplicationCard::fileDialogMessage() const
{
    return QStringLiteral("Choose an application to assign to %1").arg(rawValue(m_record.key()));
}

void OpenApplicationCard::toggleList()
{
    m_isPickerPresented = !m_isPickerPresented;
    Q_EMIT changed();
}

void OpenApplicationCard::setSearchText(const QString& text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    Q_EMIT changed();
}

QList<InstalledApplication> OpenApplicationCard::filteredInstalledApps() const
{
    return m_list.search().containing(m_searchText);
}

void OpenApplicationCard::choose(const InstalledApplication& application)
{
    m_record.change([&application](ConfiguredAction& config) {
        config.action = KeyAction::openApplication;
        config.customAppName = application.name;
        config.customAppBundleId = application.bundleIdentifier;
        config.customAppPath = application.path;
    });
    m_isPickerPresented = false;
    Q_EMIT changed();
}

bool OpenApplicationCard::browse()
{
    if (m_dialog)
        return true;
    m_dialog = m_with.chooser.open(
        {.title = fileDialogTitle.toString(), .message = fileDialogMessage(), .startFolder = browsing().startFolder},
        [this](const std::optional<QString>& path) {
            m_dialog.reset();
            if (path)
                chooseFile(*path);
        });
    return m_dialog != nullptr;
}

void OpenApplicationCard::chooseFile(const QString& path)
{
    if (const std::optional<InstalledApplication> application = applicationAt(m_with.folders, path))
        choose(*application);
}

} // namespace tarvin
