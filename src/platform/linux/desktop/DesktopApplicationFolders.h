#pragma once

#include "platform/linux/desktop/InstalledApplications.h"
#include "platform/ports/ApplicationFolders.h"

namespace tarvin::desktop {

/// The desktop entries that menus show, those of the user and of the system together as one folder: an entry of the
/// user's takes the place of the system's of the same id.
class DesktopApplicationFolders final : public ApplicationFolders
{
public:
    explicit DesktopApplicationFolders(ApplicationLocations locations);

    [[nodiscard]] QList<ApplicationBundle> contents(ApplicationFolder folder) const override;
    /// A desktop entry, also one that lies elsewhere: its file name is its identifier then.
    [[nodiscard]] std::optional<ApplicationBundle> bundleAt(const QString& path) const override;
    [[nodiscard]] ApplicationBrowsing browsing() const override;

private:
    const ApplicationLocations m_locations;
};

} // namespace tarvin::desktop
