#pragma once

namespace tarvin {

/// The right to take events away from other applications and to act on them.
class Permission
{
public:
    virtual ~Permission() = default;
    /// Whether at least one consuming input path can be had now.
    [[nodiscard]] virtual bool isProcessTrusted() const = 0;
    /// Asks the system to ask the user, where it does that.
    virtual void promptForTrust() = 0;
};

} // namespace tarvin
