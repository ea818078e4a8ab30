#pragma once

#include "actions/seams/ToolPanel.h"

#include <functional>
#include <utility>

namespace tarvin {

/// Stands for the manager of a panel before it is made; only to show the panel makes it.
class LazyToolPanel final : public ToolPanel
{
public:
    /// @param existing the manager, null while it has not been made
    /// @param made the manager, made now if need be
    LazyToolPanel(std::function<ToolPanel*()> existing, std::function<ToolPanel&()> made)
        : m_existing(std::move(existing))
        , m_made(std::move(made))
    { }

    [[nodiscard]] bool isVisible() const override
    {
        const ToolPanel* const panel = m_existing();
        return panel && panel->isVisible();
    }
    void show() override { m_made().show(); }
    void hide() override
    {
        if (ToolPanel* const panel = m_existing())
            panel->hide();
    }

private:
    std::function<ToolPanel*()> m_existing;
    std::function<ToolPanel&()> m_made;
};

} // namespace tarvin
