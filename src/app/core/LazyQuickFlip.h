#pragma once

#include "actions/seams/QuickFlip.h"

#include <functional>
#include <utility>

namespace tarvin {

/// Stands for the manager of the quick flip, which begins to follow the applications at its first use.
class LazyQuickFlip final : public QuickFlip
{
public:
    /// @param made the manager, made now if need be
    explicit LazyQuickFlip(std::function<QuickFlip&()> made)
        : m_made(std::move(made))
    { }

    void quickFlip(const std::optional<QString>& companionBundleId) override { m_made().quickFlip(companionBundleId); }

private:
    std::function<QuickFlip&()> m_made;
};

} // namespace tarvin
