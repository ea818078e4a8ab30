#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace tarvin {

class Files;
class Preferences;
class Scheduler;

/// The files and settings of this desktop for a command, while no program runs. Needs an application object.
class OfflineStores
{
public:
    /// @param report takes what the stores have to say
    explicit OfflineStores(std::function<void(const QString&)> report);
    ~OfflineStores();
    OfflineStores(const OfflineStores&) = delete;
    OfflineStores& operator=(const OfflineStores&) = delete;

    [[nodiscard]] Files& files();
    [[nodiscard]] Preferences& preferences();
    [[nodiscard]] Scheduler& scheduler();

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace tarvin
