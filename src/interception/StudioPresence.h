#pragma once

namespace tarvin {

/// What the interception knows of the Studio window. Main thread only.
class StudioPresence
{
public:
    virtual ~StudioPresence() = default;
    [[nodiscard]] virtual bool isGlobalSummonShortcutEnabled() const = 0;
    [[nodiscard]] virtual bool isStudioWindowVisible() const = 0;
    virtual void openStudioWindow() = 0;
};

} // namespace tarvin
