#pragma once

#include "platform/ports/Permission.h"

#include <functional>

namespace tarvin::desktop {

/// The right to take keys. No system on Linux asks the user for it: it is there where a consuming path can be had, the
/// grabs of an X session or the devices through the daemon, and granting it is described in the documents.
class LinuxPermission : public Permission
{
public:
    /// @param canConsume whether one of the paths can be had now; called at each question
    explicit LinuxPermission(std::function<bool()> canConsume)
        : m_canConsume(std::move(canConsume))
    { }

    [[nodiscard]] bool isProcessTrusted() const override { return m_canConsume(); }
    void promptForTrust() override { }

private:
    std::function<bool()> m_canConsume;
};

} // namespace tarvin::desktop
