#pragma once

#include "platform/linux/desktop/IconTheme.h"
#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/ports/ApplicationFolders.h"

#include <mutex>
#include <optional>

namespace tarvin::desktop {

/// The desktop entries that menus show, those of the user and of the system together as one folder: an entry of the
/// user's takes the place of the system's of the same id.
class DesktopApplicationFolders final : public ApplicationFolders
{
public:
    explicit DesktopApplicationFolders(ApplicationLocations locations, IconPlaces icons = {});

    [[nodiscard]] QList<ApplicationBundle> contents(ApplicationFolder folder) const override;
    /// A desktop entry, also one that lies elsewhere: its file name is its identifier then.
    [[nodiscard]] std::optional<ApplicationBundle> bundleAt(const QString& path) const override;
    [[nodiscard]] QStringList pictureFiles(const QString& icon, int pixels) const override;
    [[nodiscard]] ApplicationBrowsing browsing() const override;

private:
    const ApplicationLocations m_locations;
    const IconPlaces m_iconPlaces;
    mutable std::once_flag m_iconsAreRead;
    mutable std::optional<const IconTheme> m_icons; ///< read at the first question
};

} // namespace tarvin::desktop
