#pragma once

#include "platform/ports/ApplicationFolders.h"

#include <map>

namespace tarvin::simulated {

/// Folders that hold what a test puts into them.
class SimulatedApplicationFolders final : public ApplicationFolders
{
public:
    [[nodiscard]] QList<ApplicationBundle> contents(ApplicationFolder folder) const override
    {
        ++m_readings;
        const auto found = m_contents.find(folder);
        return found != m_contents.end() ? found->second : QList<ApplicationBundle>();
    }

    [[nodiscard]] std::optional<ApplicationBundle> bundleAt(const QString& path) const override
    {
        for (const auto& [folder, bundles] : m_contents) {
            for (const ApplicationBundle& bundle : bundles) {
                if (bundle.path == path)
                    return bundle;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] ApplicationBrowsing browsing() const override
    {
        return {.startFolder = QStringLiteral("/Applications"), .suffix = QStringLiteral("app")};
    }

    void install(ApplicationFolder folder, const ApplicationBundle& bundle) { m_contents[folder].append(bundle); }
    /// How often a folder has been read.
    [[nodiscard]] int readings() const { return m_readings; }

private:
    std::map<ApplicationFolder, QList<ApplicationBundle>> m_contents;
    mutable int m_readings = 0;
};

} // namespace tarvin::simulated
