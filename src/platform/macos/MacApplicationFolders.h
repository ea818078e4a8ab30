#pragma once

#include "platform/ports/ApplicationFolders.h"

namespace tarvin::macos {

/// The application bundles of the system's folders. Any thread; it opens every bundle, so it is slow.
class MacApplicationFolders final : public ApplicationFolders
{
public:
    [[nodiscard]] QList<ApplicationBundle> contents(ApplicationFolder folder) const override;
    [[nodiscard]] std::optional<ApplicationBundle> bundleAt(const QString& path) const override;
    /// What the bundle names as its icon. A bundle whose icon is only in its asset catalogue has none here.
    [[nodiscard]] QStringList pictureFiles(const QString& icon, int pixels) const override;
    [[nodiscard]] ApplicationBrowsing browsing() const override;

    /// How many there are by their names alone, which is quick: no bundle is opened.
    [[nodiscard]] qsizetype installedApplications() const;
};

} // namespace tarvin::macos
