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

    [[nodiscard]] QStringList pictureFiles(const QString& icon, int /*pixels*/) const override
    {
        ++m_pictureLookups;
        const auto found = m_pictures.find(icon);
        return found != m_pictures.end() ? QStringList(found->second) : QStringList();
    }

    /// An icon has its picture in a real file.
    void setPicture(const QString& icon, const QString& file) { m_pictures[icon] = file; }
    [[nodiscard]] int pictureLookups() const { return m_pictureLookups; }
    void install(ApplicationFolder folder, const ApplicationBundle& bundle) { m_contents[folder].append(bundle); }
    /// How often a folder has been read.
    [[nodiscard]] int readings() const { return m_readings; }

private:
    std::map<ApplicationFolder, QList<ApplicationBundle>> m_contents;
    std::map<QString, QString> m_pictures;
    mutable int m_readings = 0;
    mutable int m_pictureLookups = 0;
};

} // namespace tarvin::simulated
