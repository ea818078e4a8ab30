#pragma once

#include <QString>

#include <optional>

namespace tarvin {

/// Bounces between two applications. Main thread only.
class QuickFlip
{
public:
    virtual ~QuickFlip() = default;
    /// Never called in test-safe mode.
    /// @param companionBundleId the second application; absent or empty for the one that was in front before
    virtual void quickFlip(const std::optional<QString>& companionBundleId) = 0;
};

} // namespace tarvin
