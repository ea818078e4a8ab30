#pragma once

#include "platform/ports/ApplicationFolders.h"

namespace tarvin::macos {

/// The application bundles of the system's folders. Any thread; it opens every bundle, so it is slow.
class MacApplicationFolders final : public ApplicationFolders
{
public:
    [[nodiscard]] QList<ApplicationBundle> contents(ApplicationFolder folder) const override;
    [[nodiscard]] std::optional<ApplicationBundle> bundleAt(const QString& path) const override;
    [[nodiscard]] ApplicationBrowsing browsing() const override;
};

} // namespace tarvin::macos
