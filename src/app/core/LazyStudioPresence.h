#pragma once

#include "interception/StudioPresence.h"

#include <functional>
#include <utility>

namespace tarvin {

/// Stands for the manager of the Studio before it is made, so that the interception can be there first, as the order of
/// the start asks. Until then it answers as a new manager would; only to open the Studio makes it.
class LazyStudioPresence final : public StudioPresence
{
public:
    /// @param existing the manager, null while it has not been made
    /// @param made the manager, made now if need be
    LazyStudioPresence(std::function<StudioPresence*()> existing, std::function<StudioPresence&()> made)
        : m_existing(std::move(existing))
        , m_made(std::move(made))
    { }

    [[nodiscard]] bool isGlobalSummonShortcutEnabled() const override
    {
        const StudioPresence* manager = m_existing();
        return !manager || manager->isGlobalSummonShortcutEnabled();
    }
    [[nodiscard]] bool isStudioWindowVisible() const override
    {
        const StudioPresence* manager = m_existing();
        return manager && manager->isStudioWindowVisible();
    }
    void openStudioWindow() override { m_made().openStudioWindow(); }

private:
    std::function<StudioPresence*()> m_existing;
    std::function<StudioPresence&()> m_made;
};

} // namespace tarvin
